#pragma once

#include <cstdint>

#include "art/canvas.h"

namespace quintara::art {

// One chain of the far country; the nearer, the lower its crest and the stronger its colours.
struct Range {
  double crest;
  double rise;
  double foldSize;
  Color shade;
  Color light;
  double snowLine;  // Rows above it are white.
  std::uint32_t seed;
};

// Paints a chain over the whole width, down to the foot, of a canvas `fine` times as large as the picture.
void PaintRange(Canvas& canvas, int fine, const Range& range);

}  // namespace quintara::art
