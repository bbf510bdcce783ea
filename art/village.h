#pragma once

#include "art/canvas.h"
#include "art/panorama.h"

namespace quintara::art {

// Ground which is kept clear for houses.
bool InVillage(Point place);

// Houses around a church by the road, a few farms, and sheep on the meadows.
void BuildVillage(Canvas& canvas, const Panorama& panorama);

}  // namespace quintara::art
