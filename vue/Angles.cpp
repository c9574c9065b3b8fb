#include "vue/Angles.h"

#include "dessin/Surface.h"
#include "graphe/Inscriptions.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

void Cache() {
  Angles.Visible = false;
  Port().CacheDialogue("Angles");
}

std::string Degres(long v) { return CStr(v) + " deg"; }

// A spin's value says the direction of the click, then comes back to rest.
void Tourne(Curseur& spin, void (*haut)(), void (*bas)()) {
  long v = spin.Value;
  spin.Value = 0;
  if (v > 0) haut();
  if (v < 0) bas();
}

}  // namespace

void EnregistreAngles() {
  EtatAngles& d = Angles;
  d = EtatAngles{};
  d.Nom = "Angles";
  d.Caption = "Angles de vue de la représentation";
  d.Texte1.Text = Degres(0);
  d.Texte3.Text = Degres(0);
  for (Curseur* s : {&d.Spin1, &d.Spin3}) {
    s->Min = -1;
    s->Max = 1;
  }
  d.Spin1.Change = [] { ExecuteCommande("Angles.Spin1", [] { Tourne(Angles.Spin1, AnglesSpin1Haut, AnglesSpin1Bas); }); };
  d.Spin3.Change = [] { ExecuteCommande("Angles.Spin3", [] { Tourne(Angles.Spin3, AnglesSpin3Haut, AnglesSpin3Bas); }); };
  d.Gauge1.Max = 180;
  d.Gauge3.Max = 360;
  d.Gauge3.Value = 180;
  d.ListeModifiable1.Combo = true;
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
  InscritListeNoeuds(d.ListeModifiable1);
  InclinaisonDonnees = 0;
  EnregistreReglage("InclinaisonDonnees", InclinaisonDonnees);
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

// Spin buttons step the typed angle by 1 degree; the gauges follow: 0..180 for the tilt, angle +
// 180 for the rotation.
namespace {
void Pas(ZoneTexte& texte, Curseur& jauge, long decalage, int pas, long bas, long haut) {
  long v = CLng(Val(texte.Text));
  if (pas > 0 && v <= haut) ++v;
  if (pas < 0 && v > bas) --v;
  texte.Text = Degres(v);
  const long g = v + decalage;
  jauge.Value = g < jauge.Min ? jauge.Min : g > jauge.Max ? jauge.Max : g;
}
}  // namespace

void AnglesSpin1Haut() { Pas(Angles.Texte1, Angles.Gauge1, 0, 1, 0, 179); }
void AnglesSpin1Bas() { Pas(Angles.Texte1, Angles.Gauge1, 0, -1, 0, 179); }
// The up button of the rotation tests 179 before the step, so 180 is the last value.
void AnglesSpin3Haut() { Pas(Angles.Texte3, Angles.Gauge3, 180, 1, -180, 179); }
void AnglesSpin3Bas() { Pas(Angles.Texte3, Angles.Gauge3, 180, -1, -180, 179); }

}  // namespace orva
