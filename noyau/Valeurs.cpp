#include "noyau/Valeurs.h"

#include <utility>

#include "noyau/Registre.h"

namespace orva {

void ReinitialiseValeurs() {
  NoeudValFichier.ReDim(0, MaxNoeudVals);
  NbNoeudVal = 0;
  NoeudVals = {};
  ArcVal1.ReDim(0, MaxArcVals);
  ArcVal2.ReDim(0, MaxArcVals);
  NbArcVal1 = NbArcVal2 = 0;
  Classes.ReDim(1, 1);
  NbClasses = 1;
  TypeClasses = "Valeur1";
}

void EnregistreTablesValeurs() {
  EnregistreReglage("NbNoeudVal", NbNoeudVal);
  EnregistreReglage("NbArcVal1", NbArcVal1);
  EnregistreReglage("NbArcVal2", NbArcVal2);
  EnregistreReglage("NbClasses", NbClasses);
  EnregistreReglage("TypeClasses", TypeClasses);
  TableNommee& f = EnregistreTable("NoeudValFichier", NoeudValFichier);
  AjouteChamp(f, NoeudValFichier, "Code", &NoeudValeurFichier::Code);
  AjouteChamp(f, NoeudValFichier, "Valeur1", &NoeudValeurFichier::Valeur1);
  AjouteChamp(f, NoeudValFichier, "Valeur2", &NoeudValeurFichier::Valeur2);
  TableNommee& v = EnregistreTable("NoeudVals", NoeudVals);
  AjouteChamp(v, NoeudVals, "Indice", &NoeudVal::Indice);
  AjouteChamp(v, NoeudVals, "Code", &NoeudVal::Code);
  AjouteChamp(v, NoeudVals, "Valeur", &NoeudVal::Valeur);
  AjouteChamp(v, NoeudVals, "Difference", &NoeudVal::Difference);
  for (auto [nom, table] : {std::pair{"ArcVal1", &ArcVal1}, std::pair{"ArcVal2", &ArcVal2}}) {
    TableNommee& t = EnregistreTable(nom, *table);
    AjouteChamp(t, *table, "CodeOrigine", &ArcVal::CodeOrigine);
    AjouteChamp(t, *table, "IndiceOrigine", &ArcVal::IndiceOrigine);
    AjouteChamp(t, *table, "CodeDestination", &ArcVal::CodeDestination);
    AjouteChamp(t, *table, "IndiceDestination", &ArcVal::IndiceDestination);
    AjouteChamp(t, *table, "Valeur", &ArcVal::Valeur);
    AjouteChamp(t, *table, "Travail1", &ArcVal::Travail1);
    AjouteChamp(t, *table, "Couleur", &ArcVal::Couleur);
    AjouteChamp(t, *table, "Marque", &ArcVal::Marque);
  }
  TableNommee& c = EnregistreTable("Classes", Classes);
  AjouteChamp(c, Classes, "Min", &ClasseVal::Min);
  AjouteChamp(c, Classes, "Max", &ClasseVal::Max);
  AjouteChamp(c, Classes, "Couleur", &ClasseVal::Couleur);
  AjouteChamp(c, Classes, "Epaisseur", &ClasseVal::Epaisseur);
}

}  // namespace orva
