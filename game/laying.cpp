#include "game/quintara.h"
#include "numbers/trigonometry.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr std::string_view timeCaption = "Real time to impact            ";

constexpr std::string_view bonusLayingText =
    " Adjust Muzzle Elevation Angle       and Muzzle Velocity, then click      the red FIRE button. Be sure "
    "that   the trajectory clears the mountain";

}  // namespace

void QuintaraForm::LayElevation() {
  LayGun(Laying::Elevation);
}
void QuintaraForm::LayVelocity() {
  LayGun(Laying::Velocity);
}

// What every change of the laying does. A change of the elevation takes the velocity from its caption; one of
// the velocity takes the elevation from its scroll bar.
void QuintaraForm::LayGun(Laying changed) {
  fireButton.Enabled = true;
  TakeElevation();
  rangeBar.Visible = false;
  heightBar.Visible = false;
  DrawBarrel();
  DrawFlashAndSightLine();
  if (!bonusShot_) sightLine.Visible = true;
  if (changed == Laying::Velocity) TakeVelocity();
  if (bonusShot_) ClearProfileForPlot();

  TakeLaying();
  Preview(flightTimeBar.Value * finestStep, PreviewOf::Laying);
}

void QuintaraForm::TakeElevation() {
  elevation.Caption = ToText(370 - elevationBar.Value);
}

// In radians, by the caption.
Single QuintaraForm::LaidElevation() const {
  return Val(elevation.Caption) * pi / 180;
}

// What is fired or previewed is what the captions say.
void QuintaraForm::TakeLaying() {
  muzzleElevation_ = LaidElevation();
  muzzleVelocity_ = Val(velocity.Caption);
}

void QuintaraForm::DrawBarrel() {
  const Single angle = LaidElevation();
  barrel.X1 = Cos(angle) * 100 + 110;
  barrel.Y1 = 530 - Sin(angle) * 100;
  barrel.X2 = Cos(angle) * 300 + 110;
  barrel.Y2 = 530 - Sin(angle) * 300;
}

void QuintaraForm::DrawFlashAndSightLine() {
  const Single angle = LaidElevation();
  muzzleFlash.X1 = Cos(angle) * 400 + 110;
  muzzleFlash.Y1 = 530 - Sin(angle) * 400;
  muzzleFlash.X2 = barrel.X2;
  muzzleFlash.Y2 = barrel.Y2;
  sightLine.X2 = Cos(angle) * 1000;
  sightLine.Y2 = 9200 - Sin(angle) * 1000;
}

// The shell picture is a gauge of the velocity: it grows upwards from its foot at 870.
void QuintaraForm::TakeVelocity() {
  velocity.Caption = ToText(velocityBar.Value);
  shellGauge.Height = Val(velocity.Caption) + 330 - 250;
  shellGauge.Top = 870 - shellGauge.Height;
}

void QuintaraForm::ClearProfileForPlot() {
  backdrop.Top = 0;
  rangeUnit.Visible = false;
  heightUnit.Visible = false;
  // Element 0 of each scale stays. Where a Reset has unloaded the others, none is left to hide.
  const auto hide = [](auto& elements, std::int16_t km) {
    if (elements.Has(km)) elements(km).Visible = false;
  };
  for (std::int16_t km = 1; km <= rangeScaleEnd; ++km) {
    hide(rangeNumbers, km);
    hide(rangeTicks, km);
  }
  for (std::int16_t km = 1; km <= heightScaleEnd; ++km) {
    hide(heightNumbers, km);
    hide(heightTicks, km);
  }
  // Nothing moves by this: only the numbers change by which the places of the form's own boxes are told from
  // here on.
  ScaleMode = 3;
  ScaleWidth = 15225;
  ScaleHeight = 11100;
  profile.DrawWidth = 2;
  profile.Cls();
  mountain.DrawWidth = 2;
  mountain.Cls();
}

// Flies the shell that is laid, unseen, for five steps to each m/s of its velocity. Nothing ends it at the
// ground: it leaves the flight variables far below, and only the time caption and the plot stop following
// there.
void QuintaraForm::Preview(double dt, PreviewOf previewed) {
  const bool plots = previewed == PreviewOf::Laying && bonusShot_;
  Launch(flight, muzzleVelocity_, muzzleElevation_);
  flight.dt = dt;
  Flight shell = flight;
  const double k = Val(dragConstant.Caption);
  Single lastAboveGround = -1;
  const std::int16_t end = EndOfSteps(muzzleVelocity_);
  for (std::int16_t step = 1; step < end; ++step) {
    BallisticStep(shell, k);
    if (shell.y > 0) lastAboveGround = shell.time;
    if (plots) PlotShell(shell.x, shell.y);
  }
  flight = shell;
  if (lastAboveGround >= 0) {
    if (previewed == PreviewOf::Laying) impactSeconds_ = Int(lastAboveGround);
    ShowTimeToImpact(lastAboveGround);
  }
  if (plots && end > 1) advice.Caption = bonusLayingText;
}

void QuintaraForm::ShowTimeToImpact(Single seconds) {
  timeToImpact.Caption = std::string(timeCaption) + ToText(Single(Int(seconds))) + " (sec)";
}

// Marks the two places where the shell's markers would stand.
void QuintaraForm::PlotShell(Single x, Single y) {
  const Place inProfile = InProfile(x, y), inMountain = InMountain(x, y);
  profile.PSet(inProfile.x, inProfile.y, QBColor(6));
  mountain.PSet(inMountain.x, inMountain.y, QBColor(6));
}

// Only the caption: the new setting counts from the next preview or flight step on.
void QuintaraForm::RepeatTimeToImpact() {
  ShowTimeToImpact(impactSeconds_);
}

void QuintaraForm::SwitchDrag() {
  if (dragIsOn_) {
    TurnDragOff();
  } else {
    TurnDragOn();
  }
}

void QuintaraForm::TurnDragOn() {
  dragIsOn_ = true;
  scene().Randomize();
  dragConstant.Caption = ToText(Single(Int(scene().Rnd() * 10 + 1) / 1000));
  dragButton.Caption = "ON";
  dragButton.Enabled = false;
  bestScore.Caption = ToText(Val(bestScore.Caption) + 5);
  // The finest step, whatever flightTimeBar says, and the velocity and elevation as they were left.
  Preview(finestStep, PreviewOf::Drag);
}

// Comes about only where a Reset has enabled the button of a drag that was turned on among the fragments of a
// hit.
void QuintaraForm::TurnDragOff() {
  ShowTimeToImpact(flight.time);
  dragButton.Caption = "OFF";
  dragIsOn_ = false;
  dragConstant.Caption = "0";
  bestScore.Caption = ToText(Val(bestScore.Caption) - (5 - Val(shotsFired.Caption)) * 5);
}

}  // namespace quintara
