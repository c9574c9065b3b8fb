// A picture control of a dialog that only shows something: a preview surface drawn by the
// dialog's commands (Picture1), or a plain colour (Image1).
#pragma once
#include <cstdint>

#include "dessin/Surface.h"
#include "noyau/Controles.h"

namespace orva {

struct Apercu : Controle {
  SurfaceImage* Surface = nullptr;    // the preview's bitmap, when it has one
  const int32_t* Couleur = nullptr;   // otherwise the colour shown, 0x00BBGGRR
};

}  // namespace orva
