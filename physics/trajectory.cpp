#include "physics/trajectory.h"

#include "numbers/numbers.h"

namespace quintara {

TrajectoryForm::TrajectoryForm(Scene& owner) : TrajectoryControls(owner) {
  Bind(Load, &TrajectoryForm::SetUp);
  Bind(elevationBar.Change, &TrajectoryForm::ReplayElevation);
  Bind(velocityBar.Change, &TrajectoryForm::ReplayVelocity);
  Bind(dragBar.Change, &TrajectoryForm::ReplayDrag);
  Bind(distanceSlider.Scroll, &TrajectoryForm::TakeBallToDistance);
  Bind(fireButton.Click, &TrajectoryForm::Fire);
  Bind(stopButton.Click, &TrajectoryForm::StopOrGo);
  Bind(cancelButton.Click, &TrajectoryForm::cmdCancel_Click);
  Bind(flightTimer.Tick, &TrajectoryForm::TickFlight);
  Bind(paceTimer.Tick, &TrajectoryForm::SetPace);
}

// The form's own variables are left as the last window had them: a window closed in a pause comes back with
// "Stop", and the first click on it in the next flight only ends that pause.
void TrajectoryForm::SetUp() {
  ball.Left = 1200 - ball.Height / 2;
  ball.Top = 5160 - ball.Height / 2;
  paceTimer.Enabled = false;  // only a flight needs it
  LayAxes();
}

// Both axes in kilometres. These are twips: the chart's own units come with the first flight.
void TrajectoryForm::LayAxes() {
  for (loopIndex = 1; loopIndex <= 10; ++loopIndex) {
    heightTicks.Load(loopIndex);
    heightTicks(loopIndex).Visible = true;
    heightTicks(loopIndex).Y1 = 5160 - loopIndex * 440;
    heightTicks(loopIndex).Y2 = 5160 - loopIndex * 440;
  }
  for (loopIndex = 1; loopIndex <= 20; ++loopIndex) {
    rangeTicks.Load(loopIndex);
    rangeTicks(loopIndex).Visible = true;
    rangeTicks(loopIndex).X1 = 1200 + loopIndex * 373;
    rangeTicks(loopIndex).X2 = 1200 + loopIndex * 373;
  }
  for (loopIndex = 1; loopIndex <= 5; ++loopIndex) {
    heightNumbers.Load(loopIndex);
    heightNumbers(loopIndex).Visible = true;
    heightNumbers(loopIndex).Top = 5030 - loopIndex * 870;
    heightNumbers(loopIndex).Caption = ToText(loopIndex);
  }
  for (loopIndex = 1; loopIndex <= 10; ++loopIndex) {
    rangeNumbers.Load(loopIndex);
    rangeNumbers(loopIndex).Visible = true;
    rangeNumbers(loopIndex).Left = 1110 + loopIndex * 746;
    rangeNumbers(loopIndex).Caption = ToText(loopIndex);
  }
}

void TrajectoryForm::TakeElevation() {
  elevationPosition = elevationBar.Value.Get();
  elevationText.Caption = ToText(Single(370 - elevationPosition));
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
