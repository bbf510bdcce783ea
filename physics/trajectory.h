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
  void Form_Load();
  void LayAxes();
  void TakeElevation();
  void TakeVelocity();
  void TakeDrag();
  void cmdCancel_Click();

  // trajectory_flight.cpp
  void HScroll1_Change();
  void HScroll2_Change();
  void HScroll3_Change();
  void Slider1_Scroll();
  void cmdFire_Click();
  void cmdStop_Click();
  void Timer1_Timer();
  void tmrEvent_Timer();
  void Replay(double floor);
  void PlotFlight(double floor);
  void ShowReplayCaptions();
  void FlyToSlider();
  void ShowBallAtSlider();
  void SetUpChart();
  void StartFlight(double dt);
  void StartEventTimer();
  static double ChartX(Single x) { return x * 7.54 + 12000; }
  static double ChartY(Single y) { return 45000 - y * 7.54; }
  void PlotPoint(Single x, Single y) { PSet(ChartX(x), ChartY(y)); }
  void ShowBall(bool visible);
  void LayProjectionLines();
  void ShowComponentReadOuts();
  void ShowFlightReadOuts();

  // trajectory_vectors.cpp
  struct ArrowRule {
    double line12X2, line12Y1, line13Y1;  // how many times 10 x Sin(mResultantRad) each is off the tip
    double line6Barb;                     // how far the barbs of the upright arrow end below its tip
  };
  void DrawVectors();
  void DrawVectorsAscending();
  void DrawVectorsDescending();
  void DrawComponents();
  void DrawArrowHeads(const ArrowRule& rule);

  Flight flight;
  Single mTrajV0;                // initial velocity, m/s
  Single mTrajElevationRad;      // elevation in radians
  Single mTrajElevationScroll;   // where elevationBar stands
  Single mResultantRad;          // angle of the resultant vector
  Single mResultantComplement;   // what it lacks of a right angle
  Single mPaceRatio;             // of flight.vx to flight.x, one second after Fire
  std::int16_t mStepCount = 0;   // counts the steps of a replay
  std::int16_t mLoopIndex = 0;   // counts the marks of the axes
  std::int16_t mTrajPaused = 0;  // 1: stopButton holds the flight
};

}  // namespace quintara
