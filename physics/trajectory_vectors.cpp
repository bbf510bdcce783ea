#include "numbers/numbers.h"
#include "numbers/trigonometry.h"
#include "physics/trajectory.h"

// The panel of velocity vectors, in its own units: two to each m/s. The projectile is where xArrow (along the
// ground) and yArrow (upwards) begin; resultantArrow is their resultant, and its X1, Y1 is the tip.

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
  resultantAngle = Atn((resultantArrow.Y1 - xArrow.Y1) / (xArrow.X2 - xArrow.X1));
  DrawArrowHeads({.upperBarbX2 = 1, .upperBarbY1 = 1, .lowerBarbY1 = 1, .yBarbY = barb});
}

// On the way down the head keeps the angle that it had near the top of the flight, close to 0.
void TrajectoryForm::DrawVectorsDescending() {
  DrawComponents();
  DrawArrowHeads({.upperBarbX2 = -1, .upperBarbY1 = -0.5, .lowerBarbY1 = 0.5, .yBarbY = -barb});
}

void TrajectoryForm::DrawComponents() {
  yArrow.Y2 = yArrow.Y1 - (flight.vy + flight.vy);
  xArrow.X2 = xArrow.X1 + (flight.vx + flight.vx);
  resultantArrow.X1 = xArrow.X2;
  resultantArrow.Y1 = yArrow.Y2;
}

void TrajectoryForm::DrawArrowHeads(const ArrowRule& rule) {
  complement = 3.1416 / 2 - resultantAngle;
  xUpperBarb.Lay({xArrow.X2 + barb, xArrow.Y2, xArrow.X2, xArrow.Y2 - barb});
  xLowerBarb.Lay({xArrow.X2 + barb, xArrow.Y2, xArrow.X2, xArrow.Y2 + barb});

  const double x = resultantArrow.X1;
  const double y = resultantArrow.Y1;
  const double across = barb * Cos(resultantAngle);
  const double down = barb * Sin(resultantAngle);
  resultantUpperBarb.Lay({x + across, y + rule.upperBarbY1 * down, x + rule.upperBarbX2 * down, y - across});
  resultantLowerBarb.Lay(
      {x + across, y + rule.lowerBarbY1 * down, x - barb * Cos(complement), y + barb * Sin(complement)});

  const double p = yArrow.X1;
  const double q = yArrow.Y2;
  yRightBarb.Lay({p, q, p + barb, q + rule.yBarbY});
  yLeftBarb.Lay({p - barb, q + rule.yBarbY, p, q});

  resultantSymbol.Left = resultantArrow.X1 + 40;
  resultantSymbol.Top = resultantArrow.Y1 - 40;
}

}  // namespace quintara
