#pragma once

#include <cstdint>

#include "art/canvas.h"

namespace quintara::art {

// All the pictures are lit by one low sun at the right.

// Brightness in [0, 1] of folded rock at a place; size is the width in pixels of its largest folds.
double RockLight(double x, double y, double size, std::uint32_t seed);

// A sky which is the views' pale blue at the top, warms toward the horizon and carries thin clouds between.
Color SkyAt(double x, double y, double horizon, std::uint32_t seed);

}  // namespace quintara::art
