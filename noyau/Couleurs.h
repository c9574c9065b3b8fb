// Colours as the logic holds them: 32-bit integers 0x00BBGGRR. RGB builds one from its three
// components, QBColor gives the 16 colours of the platform's fixed table.
#pragma once
#include <cstdint>

namespace orva {

// r | g << 8 | b << 16, each component taken modulo 256 as the platform's RGB does.
inline constexpr int32_t RGB(int r, int g, int b) {
  return static_cast<int32_t>((static_cast<uint32_t>(r) & 0xFF) | ((static_cast<uint32_t>(g) & 0xFF) << 8) |
                              ((static_cast<uint32_t>(b) & 0xFF) << 16));
}

// The 16-colour table: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 yellow, 7 light
// grey, 8 grey, 9..15 their bright forms (15 white). A number outside 0..15 gives black.
inline constexpr int32_t QBColor(int n) {
  constexpr int32_t table[16] = {
      RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
      RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
      RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
      RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255)};
  return n >= 0 && n < 16 ? table[n] : 0;
}

}  // namespace orva
