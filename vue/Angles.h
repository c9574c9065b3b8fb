// State of the dialog Angles ("Angles de vue de la représentation").
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatAngles : Dialogue {
  Liste ListeModifiable1;  // centre of rotation: row 0 a blank, row n node n
};
inline EtatAngles Angles;

void EnregistreAngles();

}  // namespace orva
