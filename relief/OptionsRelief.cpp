#include "relief/OptionsRelief.h"

#include "graphe/Inscriptions.h"
#include "graphe/Modes.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "relief/ArcsMinimaux.h"
#include "relief/Couts.h"
#include "relief/Valuation.h"
#include "vue/Redessine.h"

namespace orva {

namespace {

void Cache(bool annule) {
  if (annule) OptionsReliefAnnule = Vrai;
  OptionsRelief.Visible = false;
  Port().CacheDialogue("OptionsRelief");
}

int VitesseDe(const char* nom) {
  const Mode* m = ModeNomme(nom);
  return m ? m->Vitesse : 0;
}

bool ArcDuMode(const char* nom) {
  const int16_t code = CodeMode(nom);
  for (long i = 1; i <= NbArcs; ++i)
    if (Arcs[i].Mode == code) return true;
  return false;
}

// Steps 3 to 5 of the command, after the dialog was confirmed.
void AppliqueVitesseDeReference(double ancienne) {
  const EtatOptionsRelief& d = OptionsRelief;
  ModeRelief1 = ModeRelief2 = 0;
  if (Coche(d.TGV)) {
    ModeRelief1 = 3;
    VitesseMaximale = VitesseDe("TGV");
  } else if (Coche(d.Autoroute)) {
    ModeRelief2 = 6;
    VitesseMaximale = VitesseDe("Autoroute");
  } else if (Coche(d.Train)) {
    ModeRelief3 = 4;
    VitesseMaximale = VitesseDe("Train");
  } else if (Coche(d.Metro)) {
    ModeRelief3 = 8;
    VitesseMaximale = VitesseDe("Métro");
  } else {
    VitesseMaximale = ArcDuMode("Voie express interurb.") ? VitesseDe("Voie express interurb.") : VitesseDe("Route70");
  }
  AjusteEchelleVitesse(ancienne);
  if (EntreeMenu* m = Orva.Menu("menValuationCoût"); m && m->Checked) menCouts();
}

}  // namespace

void PrepareOptionsRelief() {
  OptionsRelief.ModesMinimaux.Value = 1;
  OptionsRelief.TGV.Value = 1;
}

void menOptionsRelief() {
  PointeurOccupe occupe;
  EtatOptionsRelief& d = OptionsRelief;
  OptionsReliefAnnule = Faux;
  // The dialog clears ModesMinimaux as it appears.
  d.ModesMinimaux.Value = 0;
  d.Visible = true;
  Port().MontreDialogue("OptionsRelief", true);
  try {
    // 1. The last box that applies gives the speed of the virtual gain.
    if (Coche(d.GainVirtuel)) {
      VitesseGainVirtuel = static_cast<float>(VitesseDe("Route70"));
      if (Coche(d.Autoroute)) VitesseGainVirtuel = static_cast<float>(VitesseDe("Autoroute"));
      if (Coche(d.Train)) VitesseGainVirtuel = static_cast<float>(VitesseDe("Train"));
    }
    // 2. Clearing the box restores nothing.
    if (Coche(d.ReliefThematique)) ValuationRelief = "ReliefThématique";
    // 3.
    const double ancienne = VitesseMaximale;
    if (!OptionsReliefAnnule) AppliqueVitesseDeReference(ancienne);
    // 6.
    menRedessine();
  } catch (const ErreurExecution&) {
    // The trap only ends the command.
  }
}

void EnregistreOptionsRelief() {
  EtatOptionsRelief& d = OptionsRelief;
  d = EtatOptionsRelief{};
  d.Nom = "OptionsRelief";
  d.Caption = "Options du relief";
  d.Etiquette1.Caption = "Arcs à prendre en compte lors du tracé du relief :";
  struct {
    const char* nom;
    const char* caption;
    Controle* c;
  } controles[] = {{"Anamorphose", "Anamorphose", &d.Anamorphose},
                   {"GainVirtuel", "Gain virtuel", &d.GainVirtuel},
                   {"ModesMinimaux", "Avec les modes mimimaux", &d.ModesMinimaux},
                   {"Etiquette1", nullptr, &d.Etiquette1},
                   {"Métro", "   Métro", &d.Metro},
                   {"Train", "   Train", &d.Train},
                   {"Autoroute", "   Auto Route", &d.Autoroute},
                   {"TGV", "   T.G.V.", &d.TGV},
                   {"Route", "   Route", &d.Route},
                   {"Dual", "Relief basé sur le dual", &d.Dual},
                   {"ReliefThématique", "Relief thématique", &d.ReliefThematique}};
  for (auto& c : controles) {
    if (c.caption) c.c->Caption = c.caption;
    d.Ajoute(c.nom, *c.c);
  }
  d.Command3D1.Caption = "OK";
  d.Command3D2.Caption = "Annuler";
  d.Command3D1.Click = [] { Cache(false); };
  d.Command3D2.Click = [] { Cache(true); };
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Load = [] { OptionsReliefAnnule = Faux; };
  OptionsReliefAnnule = Faux;
  EnregistreReglage("OptionsReliefAnnule", OptionsReliefAnnule);
  Dialogues().push_back(&d);
  InscritCasesFamilles(d.TGV, d.Autoroute, d.Train);
}

}  // namespace orva
