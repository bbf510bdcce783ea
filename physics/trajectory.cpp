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
  Bind(cancelButton.Click, &TrajectoryForm::Unload);
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
  for (std::int16_t k = 1; k <= 10; ++k) {
    heightTicks.Load(k);
    heightTicks(k).Visible = true;
    heightTicks(k).Y1 = 5160 - k * 440;
    heightTicks(k).Y2 = 5160 - k * 440;
  }
  for (std::int16_t k = 1; k <= 20; ++k) {
    rangeTicks.Load(k);
    rangeTicks(k).Visible = true;
    rangeTicks(k).X1 = 1200 + k * 373;
    rangeTicks(k).X2 = 1200 + k * 373;
  }
  for (std::int16_t k = 1; k <= 5; ++k) {
    heightNumbers.Load(k);
    heightNumbers(k).Visible = true;
    heightNumbers(k).Top = 5030 - k * 870;
    heightNumbers(k).Caption = ToText(k);
  }
  for (std::int16_t k = 1; k <= 10; ++k) {
    rangeNumbers.Load(k);
    rangeNumbers(k).Visible = true;
    rangeNumbers(k).Left = 1110 + k * 746;
    rangeNumbers(k).Caption = ToText(k);
  }
}

void TrajectoryForm::TakeElevation() {
  elevationText.Caption = ToText(Single(370 - elevationBar.Value));
}

void TrajectoryForm::TakeVelocity() {
  velocityText.Caption = ToText(velocityBar.Value);
}

void TrajectoryForm::TakeDrag() {
  dragText.Caption = ToText(Single(dragBar.Value * 0.01));
}

}  // namespace quintara
