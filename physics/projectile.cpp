#include "physics/projectile.h"

#include "numbers/numbers.h"
#include "numbers/trigonometry.h"

namespace quintara {

ProjectileForm::ProjectileForm(Scene& owner) : ProjectileControls(owner) {
  Bind(Load, &ProjectileForm::SetUp);
  Bind(QueryUnload, &ProjectileForm::UnloadRailNumbers);
  Bind(ball1Button.Click, &ProjectileForm::StartBall1);
  Bind(ball2Button.Click, &ProjectileForm::StartBall2);
  Bind(ball3Button.Click, &ProjectileForm::StartBall3);
  Bind(resetButton.Click, &ProjectileForm::PutBack);
  Bind(stopButton.Click, &ProjectileForm::StopOrGo);
  Bind(cancelButton.Click, &ProjectileForm::Unload);
  Bind(ballTimer.Tick, &ProjectileForm::TickBalls);
}

void ProjectileForm::SetUp() {
  Left = 5000;
  Top = 4000;
  StopTimer();
  // A window closed in a run or after one left these as they stood. Its controls are as new, so the next run
  // has to begin at the start too, and Stop has to mean Stop.
  ForgetRun();
  paused_ = false;
  LoadScales();
  LayDial();
}

void ProjectileForm::LoadScales() {
  for (std::int16_t k = 1; k <= 8; ++k) {
    fallNumbers.Load(k);
    dialNumbers.Load(k);
    railTicks.Load(k);
    fallTicks.Load(k);
  }
  for (std::int16_t k = 1; k <= 7; ++k) railNumbers.Load(k);
}

// Eight positions of 45 degrees, numbered 0 to 7 clockwise from the top. The ninth number stays hidden: its
// place is the 0.
void ProjectileForm::LayDial() {
  dial.Visible = true;
  dialHand.Visible = true;
  for (std::int16_t k = 1; k <= 7; ++k) {
    Label& number = dialNumbers(k);
    number.Left = dialX - number.Width / 2 + dialNumberRadius * Sin(k * dialStep);
    number.Top = dialY - number.Width / 2 - dialNumberRadius * Cos(k * dialStep);
    number.Caption = ToText(k);
    number.Visible = true;
  }
  // Set by eye, a little to the right of where the circle would have it.
  Place(dialNumbers(0), dialX - 80, dialY - 460);
  dialNumbers(0).Caption = "0";
  dialNumbers(0).Visible = true;
}

// Everything else that LoadScales made goes with the form.
void ProjectileForm::UnloadRailNumbers() {
  for (std::int16_t k = 1; k <= 7; ++k) railNumbers.Unload(k);
}

void ProjectileForm::StartBall1() {
  Start(Run::Linear);
}
void ProjectileForm::StartBall2() {
  Start(Run::Fall);
}
void ProjectileForm::StartBall3() {
  Start(Run::Combined);
}

void ProjectileForm::Start(Run started) {
  run_ = started;
  for (CommandButton* button : {&ball1Button, &ball2Button, &ball3Button}) button->Enabled = false;
  StartTimer();
}

void ProjectileForm::StartTimer() {
  ballTimer.Interval = 50;
  ballTimer.Enabled = true;
}

void ProjectileForm::StopTimer() {
  ballTimer.Interval = 0;
  ballTimer.Enabled = false;
}

// Ball 3 comes last: it takes the places that the others have reached in the same tick.
void ProjectileForm::TickBalls() {
  if (run_ == Run::Linear || run_ == Run::Combined) StepBall1();
  if (run_ == Run::Fall || run_ == Run::Combined) StepBall2();
  if (run_ == Run::Combined) StepBall3();
}

// Stops and goes on at any time, also where nothing runs: it only knows the timer and its own last click.
void ProjectileForm::StopOrGo() {
  paused_ = !paused_;
  stopButton.Caption = paused_ ? "Go" : "Stop";
  if (paused_) {
    StopTimer();
  } else {
    StartTimer();
  }
}

void ProjectileForm::PutBack() {
  Cls();
  StopTimer();
  ForgetRun();
  PutBallsBack();
  PutBenchBack();
  HideVectors();
  HideScales();
  resetHint.Visible = false;
  resetButton.Enabled = false;
  for (CommandButton* button : {&ball1Button, &ball2Button, &ball3Button}) button->Enabled = true;
}

void ProjectileForm::ForgetRun() {
  run_ = Run::None;
  way_ = 0;
  fallHeight_ = 0;
  fallVelocity_ = 0;
}

void ProjectileForm::PutBallsBack() {
  Place(ball1, 480, 120);
  Place(digit1, 540, 160);
  SetVisible(true, ball1, digit1);
  Place(ball2, 0, 480);
  Place(digit2, 60, 520);
  Place(ball3, 480, 480);
  Place(digit3, 540, 520);
}

void ProjectileForm::PutBenchBack() {
  sightLineAcross.X1 = ball2.Left;
  sightLineAcross.X2 = ball3.Left;
  sightLineAcross.Y1 = ball3.Width / 2 + ball3.Top;
  sightLineAcross.Y2 = ball3.Width / 2 + ball3.Top;
  LaySightLineDown();
  sightLineDown.Visible = false;
  trap.X1 = 0;
  trap.Y1 = 720;
  for (Line* plunger : {&plunger3, &plunger1}) {
    plunger->X1 = 360;
    plunger->X2 = 440;
  }
  dialHand.X2 = 500;
  dialHand.Y2 = 230;
}

void ProjectileForm::HideVectors() {
  SetVisible(false, xArrow, resultantArrow, yArrow);
  resultantArrow.Y1 = yArrow.Y2;
  yArrow.Y1 = yArrow.Y2;
  SetVisible(false, xUpperBarb, xLowerBarb, resultantUpperBarb, resultantLowerBarb, yRightBarb, yLeftBarb,
             guideDown, guideAcross);
  SetVisible(false, vxText, vyText, panelDigit1, panelDigit2, panelDigit3, vxSymbol, vySymbol, panelBall1,
             panelBall2, panelBall3);
}

void ProjectileForm::HideScales() {
  for (std::int16_t k = 0; k <= 8; ++k) SetVisible(false, railTicks(k), fallTicks(k), fallNumbers(k));
  for (std::int16_t k = 0; k <= 7; ++k) railNumbers(k).Visible = false;
  metresText.Visible = false;
}

}  // namespace quintara
