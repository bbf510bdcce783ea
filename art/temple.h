#pragma once

#include "art/shapes.h"

namespace quintara::art {

// The front of a marble temple, 750 wide and 694 high, sunlit from the right: pediment, a frieze with room
// for a title, columns, a wall with a framed tablet, and steps.
void PaintTemple(Brush& brush);

// Marble of a brightness in [0, 1] at a place.
Color Marble(Point p, double light);

}  // namespace quintara::art
