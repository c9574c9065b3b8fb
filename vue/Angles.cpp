#include "vue/Angles.h"

#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"
#include "vue/Surface.h"

namespace orva {

namespace {

void Cache() {
  Angles.Visible = false;
  Port().CacheDialogue("Angles");
}

std::string Degres(long v) { return CStr(v) + " deg"; }

// The gauges follow the angles: 0..180 for the tilt, angle + 180 for the rotation.
void MetAJourJauges() {
  Angles.Gauge1.Value = Angles.Spin1.Value;
  Angles.Gauge3.Value = Angles.Spin3.Value + 180;
}

}  // namespace

void EnregistreAngles() {
  EtatAngles& d = Angles;
  d = EtatAngles{};
  d.Nom = "Angles";
  d.Caption = "Angles de vue de la représentation";
  d.Texte1.Text = Degres(0);
  d.Texte3.Text = Degres(0);
  d.Spin1.Min = 0;
  d.Spin1.Max = 180;
  d.Gauge1.Max = 180;
  d.Spin3.Min = -180;
  d.Spin3.Max = 180;
  d.Gauge3.Max = 360;
  d.Gauge3.Value = 180;
  d.ListeModifiable1.Combo = true;
  d.ListeModifiable1.Editable = true;
  d.Option1.Caption = "Trie les villes";
  d.Coche1.Caption = "Seulement les données";
  d.Commande1.Caption = "OK";
  d.Commande2.Caption = "Annuler";
  d.Commande1.Click = [] { ExecuteCommande("Angles.Commande1", AnglesCommande1); };
  d.Commande2.Click = [] { ExecuteCommande("Angles.Commande2", AnglesCommande2); };
  d.Ajoute("Texte1", d.Texte1);
  d.Ajoute("Gauge1", d.Gauge1);
  d.Ajoute("Spin1", d.Spin1);
  d.Ajoute("Texte3", d.Texte3);
  d.Ajoute("Gauge3", d.Gauge3);
  d.Ajoute("Spin3", d.Spin3);
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("Option1", d.Option1);
  d.Ajoute("Coche1", d.Coche1);
  d.Ajoute("Commande1", d.Commande1);
  d.Ajoute("Commande2", d.Commande2);
  Dialogues().push_back(&d);
  if (EntreeMenu* m = Orva.Menu("menAngles")) {
    m->Disponible = true;
    m->Click = [] { ExecuteCommande("menAngles", menAngles); };
  }
  InclinaisonDonnees = 0;
}

void menAngles() {
  Angles.Visible = true;
  Port().MontreDialogue("Angles", true);
}

void AnglesCommande1() {
  AnnuleTrace = Faux;
  Cache();
  InclinaisonDegres = Val(Angles.Texte1.Text);
  Rotation = Val(Angles.Texte3.Text);
  NoeudCentre = Left(Angles.ListeModifiable1.TexteSelection(), 4);
  Inclinaison = InclinaisonDegres * Pi / 180;
  if (Angles.Coche1.Value == 1) {
    InclinaisonDonnees = static_cast<float>(Inclinaison);
    Inclinaison = 0;
    return;
  }
  CalculeCoordonneesEcran();
  Rotation = Rotation * Pi / 180;
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  TrieNoeudsProfondeur();
  if (Angles.Option1.Value == 1) TrieNoeudsProfondeur();
  Ima.Cls();
  TraceLesNoeuds(true, true);
}

void AnglesCommande2() {
  Cache();
  AnnuleTrace = Vrai;
}

// Spin buttons step the typed angle by 1 degree.
namespace {
void Pas(ZoneTexte& texte, Curseur& spin, int pas, long bas, long haut) {
  long v = CLng(Val(texte.Text));
  if (pas > 0 && v <= haut) ++v;
  if (pas < 0 && v > bas) --v;
  spin.Value = v;
  texte.Text = Degres(v);
  MetAJourJauges();
}
}  // namespace

void AnglesSpin1Haut() { Pas(Angles.Texte1, Angles.Spin1, 1, 0, 179); }
void AnglesSpin1Bas() { Pas(Angles.Texte1, Angles.Spin1, -1, 0, 179); }
// The up button of the rotation tests 179 before the step, so 180 is the last value.
void AnglesSpin3Haut() { Pas(Angles.Texte3, Angles.Spin3, 1, -180, 179); }
void AnglesSpin3Bas() { Pas(Angles.Texte3, Angles.Spin3, -1, -180, 179); }

}  // namespace orva
