#include "relief/OptionsRelief.h"

#include "graphe/Inscriptions.h"
#include "noyau/Registre.h"

namespace orva {

void EnregistreOptionsRelief() {
  EtatOptionsRelief& d = OptionsRelief;
  d = EtatOptionsRelief{};
  d.Nom = "OptionsRelief";
  d.Caption = "Options du relief";
  struct {
    const char* nom;
    const char* caption;
    CaseACocher* c;
  } cases[] = {{"Anamorphose", "Anamorphose", &d.Anamorphose},
               {"GainVirtuel", "Gain virtuel", &d.GainVirtuel},
               {"ModesMinimaux", "Avec les modes mimimaux", &d.ModesMinimaux},
               {"Métro", "   Métro", &d.Metro},
               {"Train", "   Train", &d.Train},
               {"Autoroute", "   Auto Route", &d.Autoroute},
               {"TGV", "   T.G.V.", &d.TGV},
               {"Route", "   Route", &d.Route},
               {"Dual", "Relief basé sur le dual", &d.Dual},
               {"ReliefThématique", "Relief thématique", &d.ReliefThematique}};
  for (auto& c : cases) {
    c.c->Caption = c.caption;
    d.Ajoute(c.nom, *c.c);
  }
  d.Command3D1.Caption = "OK";
  d.Command3D2.Caption = "Annuler";
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D2", d.Command3D2);
  OptionsReliefAnnule = Faux;
  EnregistreReglage("OptionsReliefAnnule", OptionsReliefAnnule);
  Dialogues().push_back(&d);
  InscritCasesFamilles(d.TGV, d.Autoroute, d.Train);
}

}  // namespace orva
