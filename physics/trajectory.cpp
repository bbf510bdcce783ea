#include "physics/trajectory.h"

#include "numbers/numbers.h"

namespace quintara {

TrajectoryForm::TrajectoryForm(Scene& owner) : TrajectoryControls(owner) {
  Bind(Load, &TrajectoryForm::Form_Load);
  Bind(elevationBar.Change, &TrajectoryForm::HScroll1_Change);
  Bind(velocityBar.Change, &TrajectoryForm::HScroll2_Change);
  Bind(dragBar.Change, &TrajectoryForm::HScroll3_Change);
  Bind(distanceSlider.Scroll, &TrajectoryForm::Slider1_Scroll);
  Bind(fireButton.Click, &TrajectoryForm::cmdFire_Click);
  Bind(stopButton.Click, &TrajectoryForm::cmdStop_Click);
  Bind(cancelButton.Click, &TrajectoryForm::cmdCancel_Click);
  Bind(flightTimer.Tick, &TrajectoryForm::Timer1_Timer);
  Bind(paceTimer.Tick, &TrajectoryForm::tmrEvent_Timer);
}

// The form's own variables are left as the last window had them: a window closed in a pause comes back with
// "Stop", and the first click on it in the next flight only ends that pause.
void TrajectoryForm::Form_Load() {
  ball.Left = 1200 - ball.Height / 2;
  ball.Top = 5160 - ball.Height / 2;
  paceTimer.Enabled = false;  // only a flight needs it
  LayAxes();
}

// Both axes in kilometres. These are twips: the chart's own units come with the first flight.
void TrajectoryForm::LayAxes() {
  for (mLoopIndex = 1; mLoopIndex <= 10; ++mLoopIndex) {
    heightTicks.Load(mLoopIndex);
    heightTicks(mLoopIndex).Visible = true;
    heightTicks(mLoopIndex).Y1 = 5160 - mLoopIndex * 440;
    heightTicks(mLoopIndex).Y2 = 5160 - mLoopIndex * 440;
  }
  for (mLoopIndex = 1; mLoopIndex <= 20; ++mLoopIndex) {
    rangeTicks.Load(mLoopIndex);
    rangeTicks(mLoopIndex).Visible = true;
    rangeTicks(mLoopIndex).X1 = 1200 + mLoopIndex * 373;
    rangeTicks(mLoopIndex).X2 = 1200 + mLoopIndex * 373;
  }
  for (mLoopIndex = 1; mLoopIndex <= 5; ++mLoopIndex) {
    heightNumbers.Load(mLoopIndex);
    heightNumbers(mLoopIndex).Visible = true;
    heightNumbers(mLoopIndex).Top = 5030 - mLoopIndex * 870;
    heightNumbers(mLoopIndex).Caption = ToText(mLoopIndex);
  }
  for (mLoopIndex = 1; mLoopIndex <= 10; ++mLoopIndex) {
    rangeNumbers.Load(mLoopIndex);
    rangeNumbers(mLoopIndex).Visible = true;
    rangeNumbers(mLoopIndex).Left = 1110 + mLoopIndex * 746;
    rangeNumbers(mLoopIndex).Caption = ToText(mLoopIndex);
  }
}

void TrajectoryForm::TakeElevation() {
  mTrajElevationScroll = elevationBar.Value.Get();
  elevationText.Caption = ToText(Single(370 - mTrajElevationScroll));
}

void TrajectoryForm::TakeVelocity() {
  velocityText.Caption = ToText(velocityBar.Value);
}

void TrajectoryForm::TakeDrag() {
  dragText.Caption = ToText(Single(dragBar.Value * 0.01));
}

void TrajectoryForm::cmdCancel_Click() {
  Unload();
}

}  // namespace quintara
