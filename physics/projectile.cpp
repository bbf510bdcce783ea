#include "physics/projectile.h"

#include "numbers/numbers.h"
#include "numbers/trigonometry.h"

namespace quintara {

ProjectileForm::ProjectileForm(Scene& owner) : ProjectileControls(owner) {
  Bind(Load, &ProjectileForm::Form_Load);
  Bind(QueryUnload, &ProjectileForm::Form_QueryUnload);
  Bind(ball1Button.Click, &ProjectileForm::cmdBall1_Click);
  Bind(ball2Button.Click, &ProjectileForm::cmdBall2_Click);
  Bind(ball3Button.Click, &ProjectileForm::cmdBall3_Click);
  Bind(resetButton.Click, &ProjectileForm::cmdReset_Click);
  Bind(stopButton.Click, &ProjectileForm::cmdStop_Click);
  Bind(cancelButton.Click, &ProjectileForm::cmdCancel_Click);
  Bind(ballTimer.Tick, &ProjectileForm::tmrStart_Timer);
}

void ProjectileForm::Form_Load() {
  Left = 5000;
  Top = 4000;
  StopTimer();
  // A window closed in a run or after one left these as they stood. Its controls are as new, so the next run
  // has to begin at the start too, and Stop has to mean Stop.
  ForgetRun();
  mBallsPaused = 0;
  LoadScales();
  LayDial();
}

void ProjectileForm::LoadScales() {
  for (mLoopIndex = 1; mLoopIndex <= 8; ++mLoopIndex) {
    fallNumbers.Load(mLoopIndex);
    dialNumbers.Load(mLoopIndex);
    railTicks.Load(mLoopIndex);
    fallTicks.Load(mLoopIndex);
  }
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) railNumbers.Load(mLoopIndex);
}

// Eight positions of 45 degrees, numbered 0 to 7 clockwise from the top. The ninth number stays hidden: its
// place is the 0.
void ProjectileForm::LayDial() {
  dial.Visible = true;
  mDialX = 500;
  mDialY = 500;
  mDialBase = 200;
  mDialStep = 141.372 / 180;
  dialHand.Visible = true;
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) {
    Label& number = dialNumbers(mLoopIndex);
    number.Left = mDialX - number.Width / 2 + (mDialBase + 200) * Sin(mLoopIndex * mDialStep);
    number.Top = mDialY - number.Width / 2 - (mDialBase + 200) * Cos(mLoopIndex * mDialStep);
    number.Caption = ToText(mLoopIndex);
    number.Visible = true;
  }
  // Set by eye, a little to the right of where the circle would have it.
  Place(dialNumbers(0), mDialX - 80, mDialY - 460);
  dialNumbers(0).Caption = "0";
  dialNumbers(0).Visible = true;
}

// Everything else that Load made goes with the form.
void ProjectileForm::Form_QueryUnload() {
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) railNumbers.Unload(mLoopIndex);
}

void ProjectileForm::cmdBall1_Click() {
  StartRun(linear);
}
void ProjectileForm::cmdBall2_Click() {
  StartRun(falling);
}
void ProjectileForm::cmdBall3_Click() {
  StartRun(combined);
}

void ProjectileForm::StartRun(std::int16_t mode) {
  mBallMode = mode;
  for (CommandButton* button : {&ball1Button, &ball2Button, &ball3Button}) button->Enabled = false;
  ballTimer.Interval = 50;
  ballTimer.Enabled = true;
}

void ProjectileForm::StopTimer() {
  ballTimer.Interval = 0;
  ballTimer.Enabled = false;
}

// Ball 3 comes last: it takes the places that the others have reached in the same tick.
void ProjectileForm::tmrStart_Timer() {
  if (mBallMode == linear || mBallMode == combined) StepHorizontalBall();
  if (mBallMode == falling || mBallMode == combined) StepFallingBall();
  if (mBallMode == combined) StepCombinedBall();
}

// Stops and goes on at any time, also where nothing runs: it only knows the timer and its own last click.
void ProjectileForm::cmdStop_Click() {
  if (mBallsPaused == 0) {
    stopButton.Caption = "Go";
    StopTimer();
    mBallsPaused = 1;
  } else {
    stopButton.Caption = "Stop";
    ballTimer.Interval = 50;
    ballTimer.Enabled = true;
    mBallsPaused = 0;
  }
}

void ProjectileForm::cmdReset_Click() {
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
  mBallMode = idle;
  mBallX = 0;
  mBallY = 0;
  mBallVy = 0;
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
  LaySightLine();
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
  for (mLoopIndex = 0; mLoopIndex <= 8; ++mLoopIndex)
    SetVisible(false, railTicks(mLoopIndex), fallTicks(mLoopIndex), fallNumbers(mLoopIndex));
  for (mLoopIndex = 0; mLoopIndex <= 7; ++mLoopIndex) railNumbers(mLoopIndex).Visible = false;
  metresText.Visible = false;
}

void ProjectileForm::cmdCancel_Click() {
  Unload();
}

}  // namespace quintara
