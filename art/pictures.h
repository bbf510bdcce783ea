#pragma once

#include "art/canvas.h"

namespace quintara::art {

// The valley as the gunner sees it from high above.
Canvas PaintLandscape();

// What a profile view is put together from: the mountain at the left, the far ranges and the ground in front.
Canvas PaintMountain();
Canvas PaintBackdrop();
Canvas PaintGround();
Canvas PaintBenchGround();
Canvas PaintMortar();

// Things that fly, stand or burn.
Canvas PaintShell();
Canvas PaintTarget();
Canvas PaintFlames();

// Marks and buttons.
Canvas PaintFireButton();
Canvas PaintMortarTag();
Canvas PaintOriginMark();
Canvas PaintStrip();

// The laboratory's signs: balls with their experiments' names, and letters of formulas.
Canvas PaintBallFace(int number);
Canvas PaintVIndexX();
Canvas PaintVIndexY();
Canvas PaintPlusVIndexY();
Canvas PaintMinusVIndexY();
Canvas PaintVIndexO();
Canvas PaintLetterV();
Canvas PaintAlpha();

Canvas PaintIcon(int size);
Canvas PaintMasters();

// One of the ten slices, from 1 at the left, which the radar shows of the land below the target's path.
Canvas PaintRadarProfile(int number);

}  // namespace quintara::art
