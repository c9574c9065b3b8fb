#include "valeurs/Statistiques.h"

#include "noyau/Couleurs.h"
#include "noyau/Erreurs.h"

namespace orva {

int32_t CouleurClasse(long k) {
  if (k < 1 || k > 10) Leve(ErrIndice);
  return Statistiques.CouleursClasses[static_cast<std::size_t>(k)];
}

void PrepareCouleursClasses() {
  // Greys from dark to light: the default of the relief's fifth ramp too, where the lit faces
  // take the light classes.
  for (int k = 1; k <= 10; ++k) {
    const int g = 0x70 + (k - 1) * 15;
    Statistiques.CouleursClasses[static_cast<std::size_t>(k)] = RGB(g, g, g);
  }
}

void EnregistreStatistiques() {
  EtatStatistiques& d = Statistiques;
  d = EtatStatistiques{};
  d.Nom = "Statistiques";
  d.Caption = "Statistiques";
  d.Modal = false;
  for (std::size_t k = 1; k <= 10; ++k) {
    d.PicClasse[k].Caption = "Cliquez pour modifier la couleur";
    d.PicClasse[k].Couleur = &d.CouleursClasses[k];
  }
  d.AjouteTableau("PicClasse", [](int i) -> Controle* {
    if (i < 1 || i > 10) return nullptr;
    return &Statistiques.PicClasse[static_cast<std::size_t>(i)];
  });
  Dialogues().push_back(&d);
}

}  // namespace orva
