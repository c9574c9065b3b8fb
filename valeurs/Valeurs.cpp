#include "valeurs/Valeurs.h"

#include "noyau/Registre.h"

namespace orva {

void EnregistreValeurs() {
  ArcVal1.ReDim(0, MaxArcVals);
  ArcVal2.ReDim(0, MaxArcVals);
  NbArcVal1 = NbArcVal2 = 0;
  EnregistreReglage("NbArcVal1", NbArcVal1);
  EnregistreReglage("NbArcVal2", NbArcVal2);
  for (auto [nom, table] : {std::pair{"ArcVal1", &ArcVal1}, std::pair{"ArcVal2", &ArcVal2}}) {
    TableNommee& t = EnregistreTable(nom, *table);
    AjouteChamp(t, *table, "CodeOrigine", &ArcVal::CodeOrigine);
    AjouteChamp(t, *table, "IndiceOrigine", &ArcVal::IndiceOrigine);
    AjouteChamp(t, *table, "CodeDestination", &ArcVal::CodeDestination);
    AjouteChamp(t, *table, "IndiceDestination", &ArcVal::IndiceDestination);
    AjouteChamp(t, *table, "Valeur", &ArcVal::Valeur);
    AjouteChamp(t, *table, "Couleur", &ArcVal::Couleur);
    AjouteChamp(t, *table, "Marque", &ArcVal::Marque);
  }
}

}  // namespace orva
