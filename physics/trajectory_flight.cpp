#include <optional>

#include "numbers/numbers.h"
#include "physics/trajectory.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr double fineStep = 0.059;  // seconds: what curves and the slider are worked out in
constexpr double ballStep = 0.11;   // one tick of a ball's flight

constexpr double metresPerSliderPosition = 99;

}  // namespace

void TrajectoryForm::ReplayElevation() {
  TakeElevation();
  Replay(-20);
  speedCaption.Caption = "Velocity at Impact (m/s):";
}
void TrajectoryForm::ReplayVelocity() {
  TakeVelocity();
  Replay(-20);
}
// The one curve that ends above the ground: it is followed down to 20 m, not to 20 m below.
void TrajectoryForm::ReplayDrag() {
  TakeDrag();
  TakeElevation();
  TakeVelocity();
  Replay(20);
}

// Flies the whole flight at once and plots it, down to `floor` metres. A ball that is in the air goes on
// ticking: it finds itself far below the ground and stops.
void TrajectoryForm::Replay(double floor) {
  ShowBall(false);
  vectorPanel.Visible = false;
  distanceSlider.Value = 0;
  StartFlight(fineStep);
  SetUpChart();
  Cls();
  PlotFlight(floor);
  ShowReplayCaptions();
}

// Five steps to each m/s of the initial velocity. Nothing ends it at the ground; only the floor keeps dots
// and read-outs from following the flight down. Nobody sees the read-outs before the last step is done, so
// only what is left in them at the end is turned into text.
void TrajectoryForm::PlotFlight(double floor) {
  struct Point {
    Single time, x, speed;
  };
  std::optional<Point> lastAboveFloor;
  std::optional<Single> lastHeightRisen;
  Flight shell = flight_;
  const double k = Val(dragText.Caption);
  const std::int16_t end = EndOfSteps(initialVelocity_);
  for (std::int16_t step = 1; step < end; ++step) {
    BallisticStep(shell, k);
    if (shell.y > floor) {
      PlotPoint(shell.x, shell.y);
      lastAboveFloor = {shell.time, shell.x, shell.speed};
    }
    if (shell.vy > Single(0.01)) lastHeightRisen = shell.y;
  }
  flight_ = shell;
  if (lastAboveFloor) {
    timeText.Caption = Format(lastAboveFloor->time, Pattern::Whole);
    rangeText.Caption = Format(lastAboveFloor->x, Pattern::Whole);
    speedText.Caption = Format(lastAboveFloor->speed, Pattern::TwoDecimals);
  }
  if (lastHeightRisen) heightText.Caption = Format(*lastHeightRisen, Pattern::Whole);
}

void TrajectoryForm::ShowReplayCaptions() {
  rangeCaption.Caption = "Range (m):";
  heightCaption.Caption = "Height (m):";
  vxCaption.Caption = "";
  vyCaption.Caption = "";
  vxText.Visible = false;
  vyText.Visible = false;
  fireButton.Enabled = true;
  stopButton.Enabled = false;
  paused_ = false;
  stopButton.Caption = "Stop";
}

// The flight up to the slider's distance. A ball that is in the air goes on from there, in fine steps.
void TrajectoryForm::TakeBallToDistance() {
  TakeDrag();
  ball.Visible = false;
  TakeElevation();
  TakeVelocity();
  StartFlight(fineStep);
  SetUpChart();
  Cls();
  FlyToSlider();
  ShowBallAtSlider();
  LayProjectionLines();
  DrawVectors();
  rangeCaption.Caption = "x (m):";
  heightCaption.Caption = "y (m):";
  speedCaption.Caption = "Velocity (m/s):";
  ShowComponentReadOuts();
  ShowFlightReadOuts();
}

// The step that passes the slider counts along the ground only: height and time are those of the one before.
void TrajectoryForm::FlyToSlider() {
  const std::int16_t end = EndOfSteps(initialVelocity_);
  for (std::int16_t step = 1; step < end; ++step) {
    StepAlongGround(flight_, Val(dragText.Caption));
    if (flight_.x > distanceSlider.Value * metresPerSliderPosition) return;
    StepUpwards(flight_);
    if (flight_.y > 0) PlotPoint(flight_.x, flight_.y);
  }
}

// At height 0, where the slider stands before the first step, everything stays as it is.
void TrajectoryForm::ShowBallAtSlider() {
  if (flight_.y < 0) {
    ShowBall(false);
    vectorPanel.Visible = false;
  } else if (flight_.y > 0) {
    ShowBall(true);
    vectorPanel.Visible = true;
    // Not quite where a flight shows the ball: half its height to the left instead of half its width, and the
    // top 400 above the point.
    ball.Left = ChartX(flight_.x) - ball.Height / 2;
    ball.Top = 44600 - flight_.y * 7.54;
  }
}

// A flight leaves the captions of x, y and speed as they are: after a replay these run under
// "Range" and "Height".
void TrajectoryForm::Fire() {
  scene().Beep();
  StartPaceTimer();
  SetUpChart();
  vxCaption.Visible = true;
  vyCaption.Visible = true;
  ShowComponentReadOuts();
  TakeDrag();
  ShowBall(true);
  vectorPanel.Visible = true;
  TakeElevation();
  TakeVelocity();
  StartFlight(ballStep);
  flightTimer.Enabled = true;
  fireButton.Enabled = false;
  stopButton.Enabled = true;
}

void TrajectoryForm::StopOrGo() {
  paused_ = !paused_;
  stopButton.Caption = paused_ ? "Go" : "Stop";
  flightTimer.Enabled = !paused_;
}

// The landing leaves the buttons alone: Fire stays disabled until a scroll bar is moved.
void TrajectoryForm::TickFlight() {
  if (flight_.y < 0) {
    // The ground is found: the ball stops, but this tick still makes its step, and the read-outs show it.
    scene().Beep();
    flightTimer.Enabled = false;
    ShowBall(false);
  } else if (flight_.y > 0) {
    ShowBall(true);
    vectorPanel.Visible = true;
  }
  BallisticStep(flight_, Val(dragText.Caption));
  // Half the width both ways: in chart units the ball's width is not its height.
  ball.Left = ChartX(flight_.x) - ball.Width / 2;
  ball.Top = ChartY(flight_.y) - ball.Width / 2;
  LayProjectionLines();
  ShowFlightReadOuts();
  DrawVectors();
}

void TrajectoryForm::StartPaceTimer() {
  paceTimer.Enabled = true;
  paceTimer.Interval = 1000;
}

// A second into the flight its ticks are paced by how far the ball has come; the pace stays for the next
// flight. A flight that has not ticked yet has no pace, and one that a replay took far away would get an
// interval that never ticks: both keep the one they have.
void TrajectoryForm::SetPace() {
  paceTimer.Interval = 0;
  paceTimer.Enabled = false;
  if (flight_.x == 0) return;
  const Single pace = flight_.vx / flight_.x;
  const std::int32_t interval = CLng(pace * 100);
  if (interval >= 1) flightTimer.Interval = interval;
}

// Every setting of the flight is taken back from its caption.
void TrajectoryForm::StartFlight(double dt) {
  const Single elevation = Val(elevationText.Caption) * 3.1416 / 180;
  initialVelocity_ = Val(velocityText.Caption);
  Launch(flight_, initialVelocity_, elevation);
  flight_.dt = dt;
}

// In these units a kilometre is 7540 both ways. No control moves; all places on the form are counted anew.
void TrajectoryForm::SetUpChart() {
  ScaleMode = 3;
  ScaleWidth = 90000;
  ScaleHeight = 70000;
}

void TrajectoryForm::ShowBall(bool visible) {
  ball.Visible = visible;
  projectionDown.Visible = visible;
  projectionAcross.Visible = visible;
}

// From the ball down to the x axis and across to the y axis.
void TrajectoryForm::LayProjectionLines() {
  projectionDown.X1 = ball.Left + ball.Height / 2;
  projectionDown.X2 = projectionDown.X1;
  projectionDown.Y1 = ball.Top + ball.Height;
  projectionAcross.X2 = ball.Left;
  projectionAcross.Y2 = ball.Top + ball.Height / 2;
  projectionAcross.Y1 = projectionAcross.Y2;
}

void TrajectoryForm::ShowComponentReadOuts() {
  vxCaption.Caption = "Velocity in x-dir (m/s):";
  vyCaption.Caption = "Velocity in y-dir (m/s):";
  vxText.Visible = true;
  vyText.Visible = true;
}

void TrajectoryForm::ShowFlightReadOuts() {
  rangeText.Caption = Format(flight_.x, Pattern::TwoDecimals);
  heightText.Caption = Format(flight_.y, Pattern::TwoDecimals);
  vxText.Caption = Format(flight_.vx, Pattern::TwoDecimals);
  vyText.Caption = Format(flight_.vy, Pattern::TwoDecimals);
  speedText.Caption = Format(flight_.speed, Pattern::TwoDecimals);
  timeText.Caption = Format(flight_.time, Pattern::TwoDecimals);
}

}  // namespace quintara
