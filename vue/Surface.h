// The two picture surfaces of the main window: Ima, the bitmap, and ImaVec, its vector twin.
// Sizes are in the window's scale (millimetres); drawing inside is in pixels.
#pragma once
#include <string>

namespace orva {

struct SurfaceImage {
  double Height = 0;  // millimetres
  double Width = 0;
  std::string FontName;
  bool Visible = true;
};
inline SurfaceImage Ima;
inline SurfaceImage ImaVec;

}  // namespace orva
