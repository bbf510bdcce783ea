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
  Bind(cancelButton.Click, &ProjectileForm::cmdCancel_Click);
  Bind(ballTimer.Tick, &ProjectileForm::TickBalls);
}

void ProjectileForm::SetUp() {
  Left = 5000;
  Top = 4000;
  StopTimer();
  // A window closed in a run or after one left these as they stood. Its controls are as new, so the next run
  // has to begin at the start too, and Stop has to mean Stop.
  ForgetRun();
  paused = 0;
  LoadScales();
  LayDial();
}

void ProjectileForm::LoadScales() {
  for (loopIndex = 1; loopIndex <= 8; ++loopIndex) {
    fallNumbers.Load(loopIndex);
    dialNumbers.Load(loopIndex);
    railTicks.Load(loopIndex);
    fallTicks.Load(loopIndex);
  }
  for (loopIndex = 1; loopIndex <= 7; ++loopIndex) railNumbers.Load(loopIndex);
}

// Eight positions of 45 degrees, numbered 0 to 7 clockwise from the top. The ninth number stays hidden: its
// place is the 0.
void ProjectileForm::LayDial() {
  dial.Visible = true;
  dialX = 500;
  dialY = 500;
  dialBase = 200;
  dialStep = 141.372 / 180;
  dialHand.Visible = true;
  for (loopIndex = 1; loopIndex <= 7; ++loopIndex) {
    Label& number = dialNumbers(loopIndex);
    number.Left = dialX - number.Width / 2 + (dialBase + 200) * Sin(loopIndex * dialStep);
    number.Top = dialY - number.Width / 2 - (dialBase + 200) * Cos(loopIndex * dialStep);
    number.Caption = ToText(loopIndex);
    number.Visible = true;
  }
  // Set by eye, a little to the right of where the circle would have it.
  Place(dialNumbers(0), dialX - 80, dialY - 460);
  dialNumbers(0).Caption = "0";
  dialNumbers(0).Visible = true;
}

// Everything else that Load made goes with the form.
void ProjectileForm::UnloadRailNumbers() {
  for (loopIndex = 1; loopIndex <= 7; ++loopIndex) railNumbers.Unload(loopIndex);
}

void ProjectileForm::StartBall1() {
  Start(linear);
}
void ProjectileForm::StartBall2() {
  Start(falling);
}
void ProjectileForm::StartBall3() {
  Start(combined);
}

void ProjectileForm::Start(std::int16_t mode) {
  run = mode;
  for (CommandButton* button : {&ball1Button, &ball2Button, &ball3Button}) button->Enabled = false;
  ballTimer.Interval = 50;
  ballTimer.Enabled = true;
}

void ProjectileForm::StopTimer() {
  ballTimer.Interval = 0;
  ballTimer.Enabled = false;
}

// Ball 3 comes last: it takes the places that the others have reached in the same tick.
void ProjectileForm::TickBalls() {
  if (run == linear || run == combined) StepBall1();
  if (run == falling || run == combined) StepBall2();
  if (run == combined) StepBall3();
}

// Stops and goes on at any time, also where nothing runs: it only knows the timer and its own last click.
void ProjectileForm::StopOrGo() {
  if (paused == 0) {
    stopButton.Caption = "Go";
    StopTimer();
    paused = 1;
  } else {
    stopButton.Caption = "Stop";
    ballTimer.Interval = 50;
    ballTimer.Enabled = true;
    paused = 0;
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
  run = idle;
  wayRun = 0;
  fallHeight = 0;
  fallVelocity = 0;
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
  for (loopIndex = 0; loopIndex <= 8; ++loopIndex)
    SetVisible(false, railTicks(loopIndex), fallTicks(loopIndex), fallNumbers(loopIndex));
  for (loopIndex = 0; loopIndex <= 7; ++loopIndex) railNumbers(loopIndex).Visible = false;
  metresText.Visible = false;
}

void ProjectileForm::cmdCancel_Click() {
  Unload();
}

}  // namespace quintara
