#include "numbers/numbers.h"
#include "numbers/trigonometry.h"
#include "physics/trajectory.h"

// The panel of velocity vectors, in its own units: two to each m/s. The projectile is where the arrows along
// the ground and upwards begin; the tip of their resultant is its X1, Y1.

namespace quintara {
namespace {

constexpr double barb = 10;

}  // namespace

void TrajectoryForm::DrawVectors() {
  if (flight_.vy > 0) DrawVectorsAscending();
  if (flight_.vy < 0) DrawVectorsDescending();
}

// Lines count downwards, so on the way up the angle is the negative one of the path; the head turns with it.
void TrajectoryForm::DrawVectorsAscending() {
  DrawComponents();
  resultantAngle_ = Atn((resultantArrow.Y1 - xArrow.Y1) / (xArrow.X2 - xArrow.X1));
  DrawArrowHeads({.upperBarbX2 = 1, .upperBarbY1 = 1, .lowerBarbY1 = 1, .yBarbsBelow = barb});
}

// On the way down the head keeps the angle of the last way up, which is close to 0 near the top of a flight.
void TrajectoryForm::DrawVectorsDescending() {
  DrawComponents();
  DrawArrowHeads({.upperBarbX2 = -1, .upperBarbY1 = -0.5, .lowerBarbY1 = 0.5, .yBarbsBelow = -barb});
}

void TrajectoryForm::DrawComponents() {
  yArrow.Y2 = yArrow.Y1 - (flight_.vy + flight_.vy);
  xArrow.X2 = xArrow.X1 + (flight_.vx + flight_.vx);
  resultantArrow.X1 = xArrow.X2;
  resultantArrow.Y1 = yArrow.Y2;
}

void TrajectoryForm::DrawArrowHeads(const ArrowRule& rule) {
  const Single complement = 3.1416 / 2 - resultantAngle_;
  xUpperBarb.Lay({xArrow.X2 + barb, xArrow.Y2, xArrow.X2, xArrow.Y2 - barb});
  xLowerBarb.Lay({xArrow.X2 + barb, xArrow.Y2, xArrow.X2, xArrow.Y2 + barb});

  const double tipX = resultantArrow.X1;
  const double tipY = resultantArrow.Y1;
  const double across = barb * Cos(resultantAngle_);
  const double down = barb * Sin(resultantAngle_);
  resultantUpperBarb.Lay(
      {tipX + across, tipY + rule.upperBarbY1 * down, tipX + rule.upperBarbX2 * down, tipY - across});
  resultantLowerBarb.Lay({tipX + across, tipY + rule.lowerBarbY1 * down, tipX - barb * Cos(complement),
                          tipY + barb * Sin(complement)});

  yRightBarb.Lay({yArrow.X1, yArrow.Y2, yArrow.X1 + barb, yArrow.Y2 + rule.yBarbsBelow});
  yLeftBarb.Lay({yArrow.X1 - barb, yArrow.Y2 + rule.yBarbsBelow, yArrow.X1, yArrow.Y2});

  resultantSymbol.Left = resultantArrow.X1 + 40;
  resultantSymbol.Top = resultantArrow.Y1 - 40;
}

}  // namespace quintara
