#include "vue/SeuilsAffichage.h"

#include "dessin/Surface.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheNoeuds.h"

namespace orva {

namespace {

constexpr const char* kNom = "SeuilsAffichage";
// Scales of the two gauges: the upper threshold in tens of thousands, the lower one in
// hundredths of 15000000.
constexpr double kEchelleGauge1 = 10000;
constexpr double kEchelleGauge2 = 15000000;

void Cache() {
  SeuilsAffichage.Visible = false;
  Port().CacheDialogue(kNom);
}

long ValeurDe(const ZoneTexte& t) { return CLng(Val(t.Text)); }

long Borne(const Curseur& c, double v) {
  long n = static_cast<long>(v);
  return n < c.Min ? c.Min : n > c.Max ? c.Max : n;
}

// The text box and the mask field show the same value; the gauge follows.
void MontreSuperieur(long v) {
  EtatSeuilsAffichage& d = SeuilsAffichage;
  d.Texte1.Text = CStr(v);
  d.MaskedEdit1.Text = d.Texte1.Text;
  d.Gauge1.Value = Borne(d.Gauge1, v / kEchelleGauge1);
}

void MontreInferieur(long v) {
  EtatSeuilsAffichage& d = SeuilsAffichage;
  d.Texte2.Text = CStr(v);
  d.MaskedEdit2.Text = d.Texte2.Text;
  d.Gauge2.Value = Borne(d.Gauge2, v * 100.0 / kEchelleGauge2);
}

// Typing in one field shows the same text in its twin.
void Recopie(const ZoneTexte& de, ZoneTexte& vers, void (*montre)(long)) {
  if (vers.Text == de.Text) return;
  vers.Text = de.Text;
  montre(CLng(Val(de.Text)));
}

// The lower threshold steps with its magnitude; below 100 it does not move.
long PasInferieur(long v) {
  if (v >= 100000) return 100000;
  if (v >= 10000) return 10000;
  if (v >= 1000) return 1000;
  if (v >= 100) return 100;
  return 0;
}

// A spin's value says the direction of the click, then comes back to rest.
void Tourne(Curseur& spin, void (*haut)(), void (*bas)()) {
  long v = spin.Value;
  spin.Value = 0;
  if (v > 0) haut();
  if (v < 0) bas();
}

}  // namespace

void EnregistreSeuilsAffichage() {
  EtatSeuilsAffichage& d = SeuilsAffichage;
  d = EtatSeuilsAffichage{};
  d.Nom = kNom;
  d.Caption = "Seuil d'affichage des noms des villes";
  d.Texte1.Caption = "Seuil d'affichage supérieur";
  d.MaskedEdit1.Caption = "habitants";
  d.Texte2.Caption = "Seuil d'affichage inférieur  ";
  d.MaskedEdit2.Caption = "habitants";
  d.Gauge1.Max = 1400;
  d.Gauge2.Max = 100;
  for (Curseur* s : {&d.Spin1, &d.Spin2}) {
    s->Min = -1;
    s->Max = 1;
  }
  d.ListeModifiable1.Caption = "Nombre de lettres à afficher";
  d.ListeModifiable1.Combo = true;
  d.Command3D1.Caption = "OK";
  d.Command3D2.Caption = "Annuler";
  d.Command3D3.Caption = "Test d'affichage";
  d.Texte1.Change = [] { Recopie(SeuilsAffichage.Texte1, SeuilsAffichage.MaskedEdit1, MontreSuperieur); };
  d.MaskedEdit1.Change = [] { Recopie(SeuilsAffichage.MaskedEdit1, SeuilsAffichage.Texte1, MontreSuperieur); };
  d.Texte2.Change = [] { Recopie(SeuilsAffichage.Texte2, SeuilsAffichage.MaskedEdit2, MontreInferieur); };
  d.MaskedEdit2.Change = [] { Recopie(SeuilsAffichage.MaskedEdit2, SeuilsAffichage.Texte2, MontreInferieur); };
  d.Spin1.Change = [] {
    ExecuteCommande("SeuilsAffichage.Spin1",
                    [] { Tourne(SeuilsAffichage.Spin1, SeuilsAffichageSpin1Haut, SeuilsAffichageSpin1Bas); });
  };
  d.Spin2.Change = [] {
    ExecuteCommande("SeuilsAffichage.Spin2",
                    [] { Tourne(SeuilsAffichage.Spin2, SeuilsAffichageSpin2Haut, SeuilsAffichageSpin2Bas); });
  };
  d.Command3D1.Click = [] { ExecuteCommande("SeuilsAffichage.Command3D1", SeuilsAffichageCommand3D1); };
  d.Command3D2.Click = [] { ExecuteCommande("SeuilsAffichage.Command3D2", SeuilsAffichageCommand3D2); };
  d.Command3D3.Click = [] { ExecuteCommande("SeuilsAffichage.Command3D3", SeuilsAffichageCommand3D3); };
  d.Ajoute("Texte1", d.Texte1);
  d.Ajoute("MaskedEdit1", d.MaskedEdit1);
  d.Ajoute("Gauge1", d.Gauge1);
  d.Ajoute("Spin1", d.Spin1);
  d.Ajoute("Texte2", d.Texte2);
  d.Ajoute("MaskedEdit2", d.MaskedEdit2);
  d.Ajoute("Gauge2", d.Gauge2);
  d.Ajoute("Spin2", d.Spin2);
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Ajoute("Command3D3", d.Command3D3);
  Dialogues().push_back(&d);
}

void PrepareSeuilsAffichage() {
  EtatSeuilsAffichage& d = SeuilsAffichage;
  MontreSuperieur(SeuilSuperieur);
  MontreInferieur(SeuilInferieur);
  Liste& l = d.ListeModifiable1;
  l.Clear();
  for (int i = 1; i <= 50; ++i) l.AddItem(CStr(i));
  l.Text = CStr(NbLettres);
  l.ListIndex = NbLettres >= 1 && NbLettres <= 50 ? NbLettres - 1 : -1;
}

void menOptionsAffichageNoms() {
  PrepareSeuilsAffichage();
  SeuilsAffichage.Visible = true;
  Port().MontreDialogue(kNom, true);
}

void SeuilsAffichagePrendValeurs() {
  EtatSeuilsAffichage& d = SeuilsAffichage;
  SeuilSuperieur = ValeurDe(d.MaskedEdit1);
  SeuilInferieur = ValeurDe(d.MaskedEdit2);
  NbLettres = CInt(Val(d.ListeModifiable1.TexteSelection()));
}

void SeuilsAffichageCommand3D1() {
  SeuilsAffichagePrendValeurs();
  AnnuleTrace = Faux;
  Cache();
}

void SeuilsAffichageCommand3D2() {
  Cache();
  AnnuleTrace = Vrai;
}

void SeuilsAffichageCommand3D3() {
  Port().Sablier(true);
  SeuilsAffichagePrendValeurs();
  Ima.Cls();
  TraceLesNoeuds(true, true);
  Port().Sablier(false);
}

void SeuilsAffichageSpin1Haut() {
  long v = ValeurDe(SeuilsAffichage.Texte1);
  if (v < 13990000) v += 100000;
  MontreSuperieur(v);
}

void SeuilsAffichageSpin1Bas() {
  long v = ValeurDe(SeuilsAffichage.Texte1);
  v -= v - 100000 >= 100000 ? 100000 : 10000;
  MontreSuperieur(v);
}

void SeuilsAffichageSpin2Haut() {
  long v = ValeurDe(SeuilsAffichage.Texte2);
  MontreInferieur(v + PasInferieur(v));
}

void SeuilsAffichageSpin2Bas() {
  long v = ValeurDe(SeuilsAffichage.Texte2);
  MontreInferieur(v - PasInferieur(v));
}

}  // namespace orva
