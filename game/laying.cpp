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
  DrawSightLines();
  if (mBonusShot == 0) sightLine.Visible = true;
  if (changed == Laying::Velocity) TakeVelocity();
  if (mBonusShot == 1) ClearProfileForPlot();

  gElevationRad = Val(elevation.Caption) * 3.1416 / 180;
  gMuzzleVelocity = Val(velocity.Caption);
  Preview(flightTimeBar.Value * 0.059, PreviewOf::Laying);
}

void QuintaraForm::TakeElevation() {
  gElevationScroll = elevationBar.Value.Get();
  elevation.Caption = ToText(Single(370 - gElevationScroll));
  gBarrelRad = Val(elevation.Caption) * 3.1416 / 180;
}

void QuintaraForm::DrawBarrel() {
  barrel.X1 = Cos(gBarrelRad) * 100 + 110;
  barrel.Y1 = 530 - Sin(gBarrelRad) * 100;
  barrel.X2 = Cos(gBarrelRad) * 300 + 110;
  barrel.Y2 = 530 - Sin(gBarrelRad) * 300;
}

void QuintaraForm::DrawSightLines() {
  muzzleFlash.X1 = Cos(gBarrelRad) * 400 + 110;
  muzzleFlash.Y1 = 530 - Sin(gBarrelRad) * 400;
  muzzleFlash.X2 = barrel.X2;
  muzzleFlash.Y2 = barrel.Y2;
  sightLine.X2 = Cos(gBarrelRad) * 1000;
  sightLine.Y2 = 9200 - Sin(gBarrelRad) * 1000;
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
  const auto hide = [](auto& elements, std::int16_t i) {
    if (elements.Has(i)) elements(i).Visible = false;
  };
  for (gLoopIndex = 1; gLoopIndex <= 33; ++gLoopIndex) {
    hide(rangeNumbers, gLoopIndex);
    hide(rangeTicks, gLoopIndex);
  }
  for (gLoopIndex = 1; gLoopIndex <= 16; ++gLoopIndex) {
    hide(heightNumbers, gLoopIndex);
    hide(heightTicks, gLoopIndex);
  }
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
  const bool plots = previewed == PreviewOf::Laying && mBonusShot == 1;
  Launch(flight, gMuzzleVelocity, gElevationRad);
  flight.dt = dt;
  gStepCount = 1;
  Flight shell = flight;
  const double k = Val(dragConstant.Caption);
  Single lastAboveGround = -1;
  const std::int16_t end = EndOfSteps(gMuzzleVelocity);
  for (; gStepCount < end; ++gStepCount) {
    BallisticStep(shell, k);
    if (shell.y > 0) lastAboveGround = shell.time;
    if (plots) PlotShell(shell.x, shell.y);
  }
  flight = shell;
  if (lastAboveGround >= 0) {
    if (previewed == PreviewOf::Laying) mImpactSeconds = Int(lastAboveGround);
    ShowTimeToImpact(lastAboveGround);
  }
  if (plots && gStepCount > 1) advice.Caption = bonusLayingText;
}

void QuintaraForm::ShowTimeToImpact(Single seconds) {
  timeToImpact.Caption = std::string(timeCaption) + ToText(Single(Int(seconds))) + " (sec)";
}

// Marks the two places where the shell's markers would stand.
void QuintaraForm::PlotShell(Single x, Single y) {
  profile.PSet(x * 0.438, 9250 - y * 0.55, QBColor(6));
  mountain.PSet(x * 0.438 - 790, mProfileHeight + 640 - y * 0.55, QBColor(6));
}

// Only the caption: the new setting counts from the next preview or flight step on.
void QuintaraForm::RepeatTimeToImpact() {
  ShowTimeToImpact(mImpactSeconds);
}

void QuintaraForm::SwitchDrag() {
  if (mDragOn == 0) {
    TurnDragOn();
  } else {
    TurnDragOff();
  }
}

void QuintaraForm::TurnDragOn() {
  mDragOn = 1;
  scene().Randomize();
  dragConstant.Caption = ToText(Single(Int(scene().Rnd() * 10 + 1) / 1000));
  dragButton.Caption = "ON";
  dragButton.Enabled = false;
  bestScore.Caption = ToText(Val(bestScore.Caption) + 5);
  // The finest step, whatever flightTimeBar says, and the velocity and elevation as they were left.
  Preview(0.059, PreviewOf::Drag);
}

// Comes about only where a Reset has enabled the button of a drag that was turned on among the fragments of a
// hit.
void QuintaraForm::TurnDragOff() {
  ShowTimeToImpact(flight.time);
  dragButton.Caption = "OFF";
  mDragOn = 0;
  dragConstant.Caption = "0";
  bestScore.Caption = ToText(Val(bestScore.Caption) - (5 - Val(shotsFired.Caption)) * 5);
}

void QuintaraForm::PrepareBonusShot() {
  mBonusShot = 1;
  gElevationRad = Val(elevation.Caption) * 3.1416 / 180;
  gMuzzleVelocity = Val(velocity.Caption);
}

}  // namespace quintara
