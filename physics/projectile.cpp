#include "physics/projectile.h"

#include "numbers/numbers.h"
#include "numbers/trigonometry.h"

namespace quintara {

ProjectileForm::ProjectileForm(Scene& owner) : ProjectileControls(owner) {
  Bind(Load, &ProjectileForm::Form_Load);
  Bind(QueryUnload, &ProjectileForm::Form_QueryUnload);
  Bind(cmdBall1.Click, &ProjectileForm::cmdBall1_Click);
  Bind(cmdBall2.Click, &ProjectileForm::cmdBall2_Click);
  Bind(cmdBall3.Click, &ProjectileForm::cmdBall3_Click);
  Bind(cmdReset.Click, &ProjectileForm::cmdReset_Click);
  Bind(cmdStop.Click, &ProjectileForm::cmdStop_Click);
  Bind(cmdCancel.Click, &ProjectileForm::cmdCancel_Click);
  Bind(tmrStart.Tick, &ProjectileForm::tmrStart_Timer);
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
    Label4.Load(mLoopIndex);
    Label6.Load(mLoopIndex);
    Line7.Load(mLoopIndex);
    Line9.Load(mLoopIndex);
  }
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) Label8.Load(mLoopIndex);
}

// Eight positions of 45 degrees, numbered 0 to 7 clockwise from the top. Label6(8) stays hidden: its place is
// the 0.
void ProjectileForm::LayDial() {
  Picture1.Visible = true;
  mDialX = 500;
  mDialY = 500;
  mDialBase = 200;
  mDialStep = 141.372 / 180;
  Line8.Visible = true;
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) {
    Label& number = Label6(mLoopIndex);
    number.Left = mDialX - number.Width / 2 + (mDialBase + 200) * Sin(mLoopIndex * mDialStep);
    number.Top = mDialY - number.Width / 2 - (mDialBase + 200) * Cos(mLoopIndex * mDialStep);
    number.Caption = ToText(mLoopIndex);
    number.Visible = true;
  }
  // Set by eye, a little to the right of where the circle would have it.
  Place(Label6(0), mDialX - 80, mDialY - 460);
  Label6(0).Caption = "0";
  Label6(0).Visible = true;
}

// Everything else that Load made goes with the form.
void ProjectileForm::Form_QueryUnload() {
  for (mLoopIndex = 1; mLoopIndex <= 7; ++mLoopIndex) Label8.Unload(mLoopIndex);
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
  for (CommandButton* button : {&cmdBall1, &cmdBall2, &cmdBall3}) button->Enabled = false;
  tmrStart.Interval = 50;
  tmrStart.Enabled = true;
}

void ProjectileForm::StopTimer() {
  tmrStart.Interval = 0;
  tmrStart.Enabled = false;
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
    cmdStop.Caption = "Go";
    StopTimer();
    mBallsPaused = 1;
  } else {
    cmdStop.Caption = "Stop";
    tmrStart.Interval = 50;
    tmrStart.Enabled = true;
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
  Label7.Visible = false;
  cmdReset.Enabled = false;
  for (CommandButton* button : {&cmdBall1, &cmdBall2, &cmdBall3}) button->Enabled = true;
}

void ProjectileForm::ForgetRun() {
  mBallMode = idle;
  mBallX = 0;
  mBallY = 0;
  mBallVy = 0;
}

void ProjectileForm::PutBallsBack() {
  Place(Shape1, 480, 120);
  Place(Label1, 540, 160);
  SetVisible(true, Shape1, Label1);
  Place(Shape2, 0, 480);
  Place(Label2, 60, 520);
  Place(Shape3, 480, 480);
  Place(Label3, 540, 520);
}

void ProjectileForm::PutBenchBack() {
  Line1.X1 = Shape2.Left;
  Line1.X2 = Shape3.Left;
  Line1.Y1 = Shape3.Width / 2 + Shape3.Top;
  Line1.Y2 = Shape3.Width / 2 + Shape3.Top;
  LaySightLine();
  Line2.Visible = false;
  Line4.X1 = 0;
  Line4.Y1 = 720;
  for (Line* plunger : {&Line5, &Line6}) {
    plunger->X1 = 360;
    plunger->X2 = 440;
  }
  Line8.X2 = 500;
  Line8.Y2 = 230;
}

void ProjectileForm::HideVectors() {
  SetVisible(false, Line10, Line11, Line12);
  Line11.Y1 = Line12.Y2;
  Line12.Y1 = Line12.Y2;
  SetVisible(false, Line15, Line16, Line17, Line18, Line19, Line20, Line21, Line22);
  SetVisible(false, Label12, Label14, Label15, Label16, Label17, Image2, Image3, Shape10, Shape11, Shape12);
}

void ProjectileForm::HideScales() {
  for (mLoopIndex = 0; mLoopIndex <= 8; ++mLoopIndex)
    SetVisible(false, Line7(mLoopIndex), Line9(mLoopIndex), Label4(mLoopIndex));
  for (mLoopIndex = 0; mLoopIndex <= 7; ++mLoopIndex) Label8(mLoopIndex).Visible = false;
  Label9.Visible = false;
}

void ProjectileForm::cmdCancel_Click() {
  Unload();
}

}  // namespace quintara
