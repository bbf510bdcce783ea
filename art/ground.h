#pragma once

#include "art/canvas.h"

namespace quintara::art {

// Grass where the profile's meadow meets the mountain: both fade to it, so that no seam shows.
inline constexpr Color meadowEdge = Rgb(0x7C9450);

}  // namespace quintara::art
