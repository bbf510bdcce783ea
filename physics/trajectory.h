#pragma once

#include "ballistics/ballistic_step.h"
#include "physics/trajectory_controls.h"

namespace quintara {

// The trajectory simulator: a flight with drag, to be studied by hand. A scroll bar replays the whole flight
// as a curve on a chart, the Fire button flies a ball along it, and the slider takes the ball to a distance.
//
// The settings live in captions, those of the elevation in degrees, of the initial velocity and of the drag
// constant. Each flight takes them back from there.
class TrajectoryForm : public TrajectoryControls {
 public:
  explicit TrajectoryForm(Scene& scene);

 private:
  // trajectory.cpp
  void SetUp();
  void LayAxes();
  void TakeElevation();
  void TakeVelocity();
  void TakeDrag();

  // trajectory_flight.cpp
  void ReplayElevation();
  void ReplayVelocity();
  void ReplayDrag();
  void TakeBallToDistance();
  void Fire();
  void StopOrGo();
  void TickFlight();
  void SetPace();
  void Replay(double floor);
  void PlotFlight(double floor);
  void ShowReplayCaptions();
  void FlyToSlider();
  void ShowBallAtSlider();
  void SetUpChart();
  void StartFlight(double dt);
  void StartPaceTimer();
  static double ChartX(Single x) { return x * 7.54 + 12000; }
  static double ChartY(Single y) { return 45000 - y * 7.54; }
  void PlotPoint(Single x, Single y) { PSet(ChartX(x), ChartY(y)); }
  void ShowBall(bool visible);
  void LayProjectionLines();
  void ShowComponentReadOuts();
  void ShowFlightReadOuts();

  // trajectory_vectors.cpp
  struct ArrowRule {
    // How often each is off the tip by a barb's length times the sine of the resultant's angle.
    double upperBarbX2, upperBarbY1, lowerBarbY1;
    double yBarbsBelow;  // how far the barbs of the upright arrow end below its tip
  };
  void DrawVectors();
  void DrawVectorsAscending();
  void DrawVectorsDescending();
  void DrawComponents();
  void DrawArrowHeads(const ArrowRule& rule);

  Flight flight_;
  Single initialVelocity_;  // of the flight that was begun last, m/s
  // Of the resultant vector, radians. It is worked out on a way up only: until there is one it is 0, and a
  // way down, also of a later flight, draws its arrow with that of the last way up.
  Single resultantAngle_;
  bool paused_ = false;  // the Stop button holds the flight; outlives the window, see SetUp
};

}  // namespace quintara
