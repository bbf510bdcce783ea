#pragma once

#include "game/quintara.h"
#include "scene/colour.h"

namespace quintara {

struct PathPoint;

// How the path of a shell is drawn over the profile: a line, a mark for each of MarksOn, and around both a
// rim by which they show on snow, grass and sky alike. Pixels at a zoom of 1.
struct TraceLook {
  Colour colour;
  Colour rimColour;
  double lineWidth;
  double markRadius;
  double rimWidth;  // on either side
};
inline constexpr TraceLook lastTrace{0x000000B0, 0x00FFFFFF, 2, 2.5, 1};
inline constexpr TraceLook earlierTrace{0x00604060, 0x00F0E0E8, 1, 1.75, 0.75};

// Where a point of a path lies: the middle of the shell's marker, in twips from the corner of the profile.
QuintaraForm::Place PlaceOfTrace(const QuintaraForm& form, const PathPoint& point);
// How far down the header is to be seen, which hides the paths as it hides the shells: to where the backdrop
// begins, in twips.
double TopOfTrace(const QuintaraForm& form);

}  // namespace quintara
