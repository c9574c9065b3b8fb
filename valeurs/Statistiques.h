// The dialog Statistiques, the control panel of the thematic images: for now the ten class
// colours (PicClasse), which the relief's fifth colour ramp reads as well.
#pragma once
#include <array>
#include <cstdint>
#include <deque>

#include "dessin/Apercu.h"
#include "noyau/Controles.h"

namespace orva {

struct EtatStatistiques : Dialogue {
  // PicClasse(1..10): the colour of each class, shown in its box (element 0 is never shown).
  std::array<int32_t, 11> CouleursClasses{};
  std::deque<Apercu> PicClasse = std::deque<Apercu>(11);
};
inline EtatStatistiques Statistiques;

// The colour of PicClasse(k), k from 1 to 10 (index error outside).
int32_t CouleurClasse(long k);

// The ten class colours that start-up presets: greys from dark to light.
void PrepareCouleursClasses();

void EnregistreStatistiques();

}  // namespace orva
