#pragma once

#include "art/canvas.h"
#include "art/panorama.h"

namespace quintara::art {

// What the air leaves of a colour that far away.
Color Hazed(Color color, double z);

// Sets trees into the landscape, from the far ones to the near ones.
void PlantTrees(Canvas& canvas, const Panorama& panorama);

}  // namespace quintara::art
