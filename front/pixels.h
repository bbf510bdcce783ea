#pragma once

#include <algorithm>
#include <cmath>

#include "scene/looks.h"
#include "scene/scale.h"

// Places and sizes in whole pixels, and the way to them from the Scene's twips.

namespace quintara {

struct PixelPoint {
  int x = 0, y = 0;

  friend constexpr bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelSize {
  int width = 0, height = 0;

  friend constexpr bool operator==(const PixelSize&, const PixelSize&) = default;
};

// The pixels from left and top on; none where width or height is 0.
struct PixelRectangle {
  int left = 0, top = 0, width = 0, height = 0;

  constexpr int right() const { return left + width; }  // the first pixel behind it
  constexpr int bottom() const { return top + height; }
  friend constexpr bool operator==(const PixelRectangle&, const PixelRectangle&) = default;
};

// The nearest pixel, halves away from zero. What lies far outside every screen, or is no number, stays at a
// place that painting can still count with.
inline int ToPixels(double twips) {
  constexpr double farOut = 16000;
  const double pixels = twips / twipsPerPixel;
  return static_cast<int>(pixels > -farOut ? std::lround(std::min(pixels, farOut)) : std::lround(-farOut));
}

inline double ToTwips(int pixels) {
  return pixels * twipsPerPixel;
}

// Place and size are rounded apart, so that nothing changes its size while it moves.
inline PixelRectangle ToPixels(const Rectangle& twips) {
  return {ToPixels(twips.left), ToPixels(twips.top), std::max(ToPixels(twips.width), 0),
          std::max(ToPixels(twips.height), 0)};
}

}  // namespace quintara
