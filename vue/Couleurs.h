// Colours of the view: 32-bit integers 0x00BBGGRR, RGB(r, g, b) = r + 256 g + 65536 b, and
// QBColor(n), the platform's fixed table of 16 colours. One definition for the whole program:
// when the graph files' header that holds them is there, it is the one used.
#pragma once
#if __has_include("graphe/Couleurs.h")
#include "graphe/Couleurs.h"
#else
#include <cstdint>

namespace orva {

inline constexpr int32_t RGB(int r, int g, int b) {
  return static_cast<int32_t>((static_cast<uint32_t>(r) & 0xFF) | ((static_cast<uint32_t>(g) & 0xFF) << 8) |
                              ((static_cast<uint32_t>(b) & 0xFF) << 16));
}

// 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 yellow, 7 light grey, 8 grey, 9..15
// their bright forms (15 white); black outside 0..15.
inline constexpr int32_t QBColor(int n) {
  constexpr int32_t table[16] = {
      RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
      RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
      RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
      RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255)};
  return n >= 0 && n < 16 ? table[n] : 0;
}

}  // namespace orva
#endif
