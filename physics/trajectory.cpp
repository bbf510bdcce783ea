#include "physics/trajectory.h"

#include "numbers/numbers.h"

namespace quintara {

TrajectoryForm::TrajectoryForm(Scene& owner) : TrajectoryControls(owner) {
  Bind(Load, &TrajectoryForm::Form_Load);
  Bind(HScroll1.Change, &TrajectoryForm::HScroll1_Change);
  Bind(HScroll2.Change, &TrajectoryForm::HScroll2_Change);
  Bind(HScroll3.Change, &TrajectoryForm::HScroll3_Change);
  Bind(Slider1.Scroll, &TrajectoryForm::Slider1_Scroll);
  Bind(cmdFire.Click, &TrajectoryForm::cmdFire_Click);
  Bind(cmdStop.Click, &TrajectoryForm::cmdStop_Click);
  Bind(cmdCancel.Click, &TrajectoryForm::cmdCancel_Click);
  Bind(Timer1.Tick, &TrajectoryForm::Timer1_Timer);
  Bind(tmrEvent.Tick, &TrajectoryForm::tmrEvent_Timer);
}

// The form's own variables are left as the last window had them: a window closed in a pause comes back with
// "Stop", and the first click on it in the next flight only ends that pause.
void TrajectoryForm::Form_Load() {
  Shape1.Left = 1200 - Shape1.Height / 2;
  Shape1.Top = 5160 - Shape1.Height / 2;
  tmrEvent.Enabled = false;  // only a flight needs it
  LayAxes();
}

// Both axes in kilometres. These are twips: the chart's own units come with the first flight.
void TrajectoryForm::LayAxes() {
  for (mLoopIndex = 1; mLoopIndex <= 10; ++mLoopIndex) {
    Line3.Load(mLoopIndex);
    Line3(mLoopIndex).Visible = true;
    Line3(mLoopIndex).Y1 = 5160 - mLoopIndex * 440;
    Line3(mLoopIndex).Y2 = 5160 - mLoopIndex * 440;
  }
  for (mLoopIndex = 1; mLoopIndex <= 20; ++mLoopIndex) {
    Line4.Load(mLoopIndex);
    Line4(mLoopIndex).Visible = true;
    Line4(mLoopIndex).X1 = 1200 + mLoopIndex * 373;
    Line4(mLoopIndex).X2 = 1200 + mLoopIndex * 373;
  }
  for (mLoopIndex = 1; mLoopIndex <= 5; ++mLoopIndex) {
    Label2.Load(mLoopIndex);
    Label2(mLoopIndex).Visible = true;
    Label2(mLoopIndex).Top = 5030 - mLoopIndex * 870;
    Label2(mLoopIndex).Caption = ToText(mLoopIndex);
  }
  for (mLoopIndex = 1; mLoopIndex <= 10; ++mLoopIndex) {
    Label1.Load(mLoopIndex);
    Label1(mLoopIndex).Visible = true;
    Label1(mLoopIndex).Left = 1110 + mLoopIndex * 746;
    Label1(mLoopIndex).Caption = ToText(mLoopIndex);
  }
}

void TrajectoryForm::TakeElevation() {
  mTrajElevationScroll = HScroll1.Value.Get();
  Label5.Caption = ToText(Single(370 - mTrajElevationScroll));
}

void TrajectoryForm::TakeVelocity() {
  Label6.Caption = ToText(HScroll2.Value);
}

void TrajectoryForm::TakeDrag() {
  Label11.Caption = ToText(Single(HScroll3.Value * 0.01));
}

void TrajectoryForm::cmdCancel_Click() {
  Unload();
}

}  // namespace quintara
