#pragma once

#include "art/shapes.h"

namespace quintara::art {

// A golden wreath of laurel, open at the top, around a medallion of the peak and a shell's way beside it.
void PaintWreath(Brush& brush, Point center, double radius);

// A bronze bowl of fire upon three legs; the point is the middle of its foot.
void PaintBrazier(Brush& brush, Point foot);

}  // namespace quintara::art
