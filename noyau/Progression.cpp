#include "noyau/Progression.h"

#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"

namespace orva {

void AfficheProgression(double maximum, double valeur, const std::string& texte) {
  if (valeur == 0 || valeur == 1) {
    Orva.ProgressionVisible = true;
    Orva.PourcentProgression = 0;
    Orva.StatusBar[5] = texte;
    Port().Rafraichit("Progression");
    Port().Rafraichit("StatusBar");
    return;
  }
  if (valeur == maximum) {
    Orva.ProgressionVisible = false;
    Orva.StatusBar[5] = "";
    Port().Rafraichit("StatusBar");
  }
  Orva.PourcentProgression = CInt(100 * Divise(valeur, maximum));
}

}  // namespace orva
