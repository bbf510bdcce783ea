#include "numbers/numbers.h"
#include "numbers/trigonometry.h"
#include "physics/trajectory.h"

// The panel of velocity vectors, in its own units: two to each m/s. The projectile is where Line5 (along the
// ground) and Line6 (upwards) begin; Line7 is their resultant, and its X1, Y1 is the tip.

namespace quintara {
namespace {

constexpr double barb = 10;

}  // namespace

void TrajectoryForm::DrawVectors() {
  if (flight.vy > 0) DrawVectorsAscending();
  if (flight.vy < 0) DrawVectorsDescending();
}

// Lines count downwards, so on the way up the angle is the negative one of the path; the head turns with it.
void TrajectoryForm::DrawVectorsAscending() {
  DrawComponents();
  mResultantRad = Atn((Line7.Y1 - Line5.Y1) / (Line5.X2 - Line5.X1));
  DrawArrowHeads({.line12X2 = 1, .line12Y1 = 1, .line13Y1 = 1, .line6Barb = barb});
}

// On the way down the head keeps the angle that it had near the top of the flight, close to 0.
void TrajectoryForm::DrawVectorsDescending() {
  DrawComponents();
  DrawArrowHeads({.line12X2 = -1, .line12Y1 = -0.5, .line13Y1 = 0.5, .line6Barb = -barb});
}

void TrajectoryForm::DrawComponents() {
  Line6.Y2 = Line6.Y1 - (flight.vy + flight.vy);
  Line5.X2 = Line5.X1 + (flight.vx + flight.vx);
  Line7.X1 = Line5.X2;
  Line7.Y1 = Line6.Y2;
}

void TrajectoryForm::DrawArrowHeads(const ArrowRule& rule) {
  mResultantComplement = 3.1416 / 2 - mResultantRad;
  Line10.Lay({Line5.X2 + barb, Line5.Y2, Line5.X2, Line5.Y2 - barb});
  Line11.Lay({Line5.X2 + barb, Line5.Y2, Line5.X2, Line5.Y2 + barb});

  const double x = Line7.X1;
  const double y = Line7.Y1;
  const double across = barb * Cos(mResultantRad);
  const double down = barb * Sin(mResultantRad);
  Line12.Lay({x + across, y + rule.line12Y1 * down, x + rule.line12X2 * down, y - across});
  Line13.Lay({x + across, y + rule.line13Y1 * down, x - barb * Cos(mResultantComplement),
              y + barb * Sin(mResultantComplement)});

  const double p = Line6.X1;
  const double q = Line6.Y2;
  Line14.Lay({p, q, p + barb, q + rule.line6Barb});
  Line16.Lay({p - barb, q + rule.line6Barb, p, q});

  Image5.Left = Line7.X1 + 40;
  Image5.Top = Line7.Y1 - 40;
}

}  // namespace quintara
