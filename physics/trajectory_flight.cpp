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

void TrajectoryForm::HScroll1_Change() {
  TakeElevation();
  Replay(-20);
  Label26.Caption = "Velocity at Impact (m/s):";
}
void TrajectoryForm::HScroll2_Change() {
  TakeVelocity();
  Replay(-20);
}
// The one curve that ends above the ground: it is followed down to 20 m, not to 20 m below.
void TrajectoryForm::HScroll3_Change() {
  TakeDrag();
  TakeElevation();
  TakeVelocity();
  Replay(20);
}

// Flies the whole flight at once and plots it, down to `floor` metres. A ball that is in the air goes on
// ticking: it finds itself far below the ground and stops.
void TrajectoryForm::Replay(double floor) {
  ShowBall(false);
  picVector.Visible = false;
  Slider1.Value = 0;
  StartFlight(fineStep);
  mStepCount = 1;
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
  Flight shell = flight;
  const double k = Val(Label11.Caption);
  const std::int16_t end = EndOfSteps(mTrajV0);
  for (; mStepCount < end; ++mStepCount) {
    BallisticStep(shell, k);
    if (shell.y > floor) {
      PlotPoint(shell.x, shell.y);
      lastAboveFloor = {shell.time, shell.x, shell.speed};
    }
    if (shell.vy > Single(0.01)) lastHeightRisen = shell.y;
  }
  flight = shell;
  if (lastAboveFloor) {
    Label29.Caption = Format(lastAboveFloor->time, Pattern::Whole);
    Label20.Caption = Format(lastAboveFloor->x, Pattern::Whole);
    Label27.Caption = Format(lastAboveFloor->speed, Pattern::TwoDecimals);
  }
  if (lastHeightRisen) Label21.Caption = Format(*lastHeightRisen, Pattern::Whole);
}

void TrajectoryForm::ShowReplayCaptions() {
  Label18.Caption = "Range (m):";
  Label19.Caption = "Height (m):";
  Label22.Caption = "";
  Label24.Caption = "";
  Label23.Visible = false;
  Label25.Visible = false;
  cmdFire.Enabled = true;
  cmdStop.Enabled = false;
  mTrajPaused = 0;
  cmdStop.Caption = "Stop";
}

// The flight up to the slider's distance. A ball that is in the air goes on from there, in fine steps.
void TrajectoryForm::Slider1_Scroll() {
  TakeDrag();
  Shape1.Visible = false;
  TakeElevation();
  TakeVelocity();
  StartFlight(fineStep);
  mStepCount = 1;
  SetUpChart();
  Cls();
  FlyToSlider();
  ShowBallAtSlider();
  LayProjectionLines();
  DrawVectors();
  Label18.Caption = "x (m):";
  Label19.Caption = "y (m):";
  Label26.Caption = "Velocity (m/s):";
  ShowComponentReadOuts();
  ShowFlightReadOuts();
}

// The step that passes the slider counts along the ground only: height and time are those of the one before.
void TrajectoryForm::FlyToSlider() {
  const std::int16_t end = EndOfSteps(mTrajV0);
  while (mStepCount < end) {
    ++mStepCount;
    StepAlongGround(flight, Val(Label11.Caption));
    if (flight.x > Slider1.Value * metresPerSliderPosition) return;
    StepUpwards(flight);
    if (flight.y > 0) PlotPoint(flight.x, flight.y);
  }
}

// At height 0, where the slider stands before the first step, everything stays as it is.
void TrajectoryForm::ShowBallAtSlider() {
  if (flight.y < 0) {
    ShowBall(false);
    picVector.Visible = false;
  } else if (flight.y > 0) {
    ShowBall(true);
    picVector.Visible = true;
    // Not quite where a flight shows the ball: half its height to the left instead of half its width, and the
    // top 400 above the point.
    Shape1.Left = ChartX(flight.x) - Shape1.Height / 2;
    Shape1.Top = 44600 - flight.y * 7.54;
  }
}

// A flight leaves the captions of x, y and speed as they are: after a replay these run under
// "Range" and "Height".
void TrajectoryForm::cmdFire_Click() {
  scene().Beep();
  StartEventTimer();
  SetUpChart();
  Label22.Visible = true;
  Label24.Visible = true;
  ShowComponentReadOuts();
  TakeDrag();
  ShowBall(true);
  picVector.Visible = true;
  TakeElevation();
  TakeVelocity();
  StartFlight(ballStep);
  Timer1.Enabled = true;
  cmdFire.Enabled = false;
  cmdStop.Enabled = true;
}

void TrajectoryForm::cmdStop_Click() {
  mTrajPaused = mTrajPaused == 0 ? 1 : 0;
  cmdStop.Caption = mTrajPaused == 1 ? "Go" : "Stop";
  Timer1.Enabled = mTrajPaused == 0;
}

// The landing leaves the buttons alone: cmdFire stays disabled until a scroll bar is moved.
void TrajectoryForm::Timer1_Timer() {
  if (flight.y < 0) {
    // The ground is found: the ball stops, but this tick still makes its step, and the read-outs show it.
    scene().Beep();
    Timer1.Enabled = false;
    ShowBall(false);
  } else if (flight.y > 0) {
    ShowBall(true);
    picVector.Visible = true;
  }
  BallisticStep(flight, Val(Label11.Caption));
  // Half the width both ways: in chart units the ball's width is not its height.
  Shape1.Left = ChartX(flight.x) - Shape1.Width / 2;
  Shape1.Top = ChartY(flight.y) - Shape1.Width / 2;
  LayProjectionLines();
  ShowFlightReadOuts();
  DrawVectors();
}

void TrajectoryForm::StartEventTimer() {
  tmrEvent.Enabled = true;
  tmrEvent.Interval = 1000;
}

// A second into the flight its ticks are paced by how far the ball has come; the pace stays for the next
// flight. A flight that has not ticked yet has no pace, and one that a replay took far away would get an
// interval that never ticks: both keep the one they have.
void TrajectoryForm::tmrEvent_Timer() {
  tmrEvent.Interval = 0;
  tmrEvent.Enabled = false;
  if (flight.x == 0) return;
  mPaceRatio = flight.vx / flight.x;
  const std::int32_t interval = CLng(mPaceRatio * 100);
  if (interval >= 1) Timer1.Interval = interval;
}

// Every setting of the flight is taken back from its caption.
void TrajectoryForm::StartFlight(double dt) {
  mTrajElevationRad = Val(Label5.Caption) * 3.1416 / 180;
  mTrajV0 = Val(Label6.Caption);
  Launch(flight, mTrajV0, mTrajElevationRad);
  flight.dt = dt;
}

// In these units a kilometre is 7540 both ways. No control moves; all places on the form are counted anew.
void TrajectoryForm::SetUpChart() {
  ScaleMode = 3;
  ScaleWidth = 90000;
  ScaleHeight = 70000;
}

void TrajectoryForm::ShowBall(bool visible) {
  Shape1.Visible = visible;
  Line8.Visible = visible;
  Line9.Visible = visible;
}

// From the ball down to the x axis and across to the y axis.
void TrajectoryForm::LayProjectionLines() {
  Line8.X1 = Shape1.Left + Shape1.Height / 2;
  Line8.X2 = Line8.X1;
  Line8.Y1 = Shape1.Top + Shape1.Height;
  Line9.X2 = Shape1.Left;
  Line9.Y2 = Shape1.Top + Shape1.Height / 2;
  Line9.Y1 = Line9.Y2;
}

void TrajectoryForm::ShowComponentReadOuts() {
  Label22.Caption = "Velocity in x-dir (m/s):";
  Label24.Caption = "Velocity in y-dir (m/s):";
  Label23.Visible = true;
  Label25.Visible = true;
}

void TrajectoryForm::ShowFlightReadOuts() {
  Label20.Caption = Format(flight.x, Pattern::TwoDecimals);
  Label21.Caption = Format(flight.y, Pattern::TwoDecimals);
  Label23.Caption = Format(flight.vx, Pattern::TwoDecimals);
  Label25.Caption = Format(flight.vy, Pattern::TwoDecimals);
  Label27.Caption = Format(flight.speed, Pattern::TwoDecimals);
  Label29.Caption = Format(flight.time, Pattern::TwoDecimals);
}

}  // namespace quintara
