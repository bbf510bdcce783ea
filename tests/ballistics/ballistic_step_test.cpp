#include "ballistics/ballistic_step.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <vector>

namespace quintara {
namespace {

struct Point {
  float x, y;
  bool operator==(const Point&) const = default;
};

void PrintTo(Point point, std::ostream* out) {
  *out << "(" << point.x << ", " << point.y << ")";
}

constexpr int steps = 500;
constexpr double dragConstant = 0.005;
constexpr Single launchVelocity = 70.0;

// The same lines on variables that no compiler may keep at hand.
std::vector<Point> FlightThroughMemory() {
  volatile float drag = 0, ax = 0, ay = 0, vx = launchVelocity.Stored(), vy = launchVelocity.Stored(), x = 0,
                 y = 0, dt = 0.2F;
  const auto wide = [](volatile float& variable) { return static_cast<double>(variable); };
  const auto store = [](volatile float& variable, double value) { variable = static_cast<float>(value); };
  std::vector<Point> path;
  for (int step = 0; step < steps; ++step) {
    store(drag, ((dragConstant * 0.001) * std::sqrt(wide(vx) * wide(vx) + wide(vy) * wide(vy))) * wide(vx));
    store(ax, -wide(drag));
    store(ay, -9.8 - wide(drag));
    store(vx, wide(ax) * wide(dt) + wide(vx));
    store(vy, wide(ay) * wide(dt) + wide(vy));
    store(x, (wide(vx) * wide(dt) + wide(x)) + wide(dt) * wide(dt) * (0.5 * wide(ax)));
    store(y, (wide(vy) * wide(dt) + wide(y)) + wide(dt) * wide(dt) * (0.5 * wide(ay)));
    path.push_back({x, y});
  }
  return path;
}

std::vector<Point> plotted;

void PlotPoint(Single x, Single y) {
  plotted.push_back({x.Stored(), y.Stored()});
}

// As the game works out its previews.
void FlyAtOnce(Flight& stored, double floor) {
  Flight flight = stored;
  for (int step = 0; step < steps; ++step) {
    BallisticStep(flight, dragConstant);
    if (flight.y > floor) PlotPoint(flight.x, flight.y);
  }
  stored = flight;
}

// A compiler that goes on with the double where the rounded single is stored spoils only flights of this
// kind.
TEST(BallisticStepTest, AFlightWorkedOutAtOnceIsRoundedAtEachStore) {
  Flight flight;
  flight.vx = launchVelocity;
  flight.vy = launchVelocity;
  flight.dt = 0.2;
  FlyAtOnce(flight, -1e9);
  EXPECT_EQ(plotted, FlightThroughMemory());
  EXPECT_EQ((Point{flight.x.Stored(), flight.y.Stored()}), plotted.back());
}

}  // namespace
}  // namespace quintara
