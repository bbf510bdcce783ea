#pragma once

#include <cstdint>

namespace quintara {

inline constexpr double twipsPerPixel = 15;

// How the surface of a form or picture box is counted: its origin is always the inner top left corner.
struct Scale {
  static constexpr std::int16_t user = 0, twips = 1, pixels = 3;

  std::int16_t mode = twips;
  double unitAcross = 1;  // twips in one unit
  double unitDown = 1;

  static constexpr Scale InTwips() { return {}; }
  static constexpr Scale InPixels() { return {pixels, twipsPerPixel, twipsPerPixel}; }
  static constexpr Scale InUnitsOf(double twipsAcross, double twipsDown) {
    return {user, twipsAcross, twipsDown};
  }
  friend constexpr bool operator==(const Scale&, const Scale&) = default;
};

}  // namespace quintara
