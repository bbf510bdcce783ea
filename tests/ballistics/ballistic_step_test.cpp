#include "ballistics/ballistic_step.h"

#include <gtest/gtest.h>

namespace quintara {
namespace {

double plottedX = 0, plottedY = 0;

void PlotPoint(Single x, Single y) {
  plottedX += x;
  plottedY += y;
}

// As the game works out its previews.
void FlyAtOnce(Flight& stored, double floor) {
  Flight flight = stored;
  for (int step = 0; step < 500; ++step) {
    BallisticStep(flight, 0.005);
    if (flight.y > floor) PlotPoint(flight.x, flight.y);
  }
  stored = flight;
}

// A compiler that goes on with the double where the rounded single is stored spoils only flights of this
// kind. The numbers come from a flight whose variables lay in memory.
TEST(BallisticStepTest, AFlightWorkedOutAtOnceIsRoundedAtEachStore) {
  Flight flight;
  flight.dt = 0.2;
  Launch(flight, 100, 0.785);
  FlyAtOnce(flight, -1e9);
  EXPECT_EQ(flight.x, 0x1.9c343ep+12);
  EXPECT_EQ(flight.y, -0x1.4cdcccp+15);
  EXPECT_EQ(plottedX, 0x1.a1ad1b3c8ap+20);
  EXPECT_EQ(plottedY, -0x1.8e9d2c637648p+22);
}

TEST(BallisticStepTest, TheNumberOfStepsIsRoundedBeforeItIsCounted) {
  EXPECT_EQ(EndOfSteps(0.2), 1) << "five times this single are a little more than 1";
  EXPECT_EQ(EndOfSteps(1e30), 32767);
  EXPECT_EQ(EndOfSteps(-1), 0);
}

}  // namespace
}  // namespace quintara
