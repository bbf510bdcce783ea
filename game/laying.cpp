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

void QuintaraForm::VScroll1_Change() {
  LayGun(Laying::Elevation);
}
void QuintaraForm::VScroll2_Change() {
  LayGun(Laying::Velocity);
}

// What every change of the laying does. A change of the elevation takes the velocity from its caption; one of
// the velocity takes the elevation from its scroll bar.
void QuintaraForm::LayGun(Laying changed) {
  Image7.Enabled = true;
  TakeElevation();
  Line8.Visible = false;
  Line9.Visible = false;
  DrawBarrel();
  DrawSightLines();
  if (mBonusShot == 0) Line24.Visible = true;
  if (changed == Laying::Velocity) TakeVelocity();
  if (mBonusShot == 1) ClearProfileForPlot();

  gElevationRad = Val(Label1.Caption) * 3.1416 / 180;
  gMuzzleVelocity = Val(Label6.Caption);
  Preview(HScroll1.Value * 0.059, PreviewOf::Laying);
}

void QuintaraForm::TakeElevation() {
  gElevationScroll = VScroll1.Value.Get();
  Label1.Caption = ToText(Single(370 - gElevationScroll));
  gBarrelRad = Val(Label1.Caption) * 3.1416 / 180;
}

void QuintaraForm::DrawBarrel() {
  Line16.X1 = Cos(gBarrelRad) * 100 + 110;
  Line16.Y1 = 530 - Sin(gBarrelRad) * 100;
  Line16.X2 = Cos(gBarrelRad) * 300 + 110;
  Line16.Y2 = 530 - Sin(gBarrelRad) * 300;
}

void QuintaraForm::DrawSightLines() {
  Line12.X1 = Cos(gBarrelRad) * 400 + 110;
  Line12.Y1 = 530 - Sin(gBarrelRad) * 400;
  Line12.X2 = Line16.X2;
  Line12.Y2 = Line16.Y2;
  Line24.X2 = Cos(gBarrelRad) * 1000;
  Line24.Y2 = 9200 - Sin(gBarrelRad) * 1000;
}

// The shell picture is a gauge of the velocity: it grows upwards from its foot at 870.
void QuintaraForm::TakeVelocity() {
  Label6.Caption = ToText(VScroll2.Value);
  Image6.Height = Val(Label6.Caption) + 330 - 250;
  Image6.Top = 870 - Image6.Height;
}

void QuintaraForm::ClearProfileForPlot() {
  Picture10.Top = 0;
  Label8.Visible = false;
  Label26.Visible = false;
  // Element 0 of each scale stays. Where a Reset has unloaded the others, none is left to hide.
  const auto hide = [](auto& elements, std::int16_t i) {
    if (elements.Has(i)) elements(i).Visible = false;
  };
  for (gLoopIndex = 1; gLoopIndex <= 33; ++gLoopIndex) {
    hide(Label3, gLoopIndex);
    hide(Line10, gLoopIndex);
  }
  for (gLoopIndex = 1; gLoopIndex <= 16; ++gLoopIndex) {
    hide(Label7, gLoopIndex);
    hide(Line11, gLoopIndex);
  }
  ScaleMode = 3;
  ScaleWidth = 15225;
  ScaleHeight = 11100;
  Picture5.DrawWidth = 2;
  Picture5.Cls();
  Picture11.DrawWidth = 2;
  Picture11.Cls();
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
  const double k = Val(Label15.Caption);
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
  if (plots && gStepCount > 1) Label4.Caption = bonusLayingText;
}

void QuintaraForm::ShowTimeToImpact(Single seconds) {
  Label31.Caption = std::string(timeCaption) + ToText(Single(Int(seconds))) + " (sec)";
}

// Marks the two places where the shell's markers would stand.
void QuintaraForm::PlotShell(Single x, Single y) {
  Picture5.PSet(x * 0.438, 9250 - y * 0.55, QBColor(6));
  Picture11.PSet(x * 0.438 - 790, mProfileHeight + 640 - y * 0.55, QBColor(6));
}

// Only the caption: the new setting counts from the next preview or flight step on.
void QuintaraForm::HScroll1_Change() {
  ShowTimeToImpact(mImpactSeconds);
}

void QuintaraForm::cmdAdvanced_Click() {
  if (mDragOn == 0) {
    TurnDragOn();
  } else {
    TurnDragOff();
  }
}

void QuintaraForm::TurnDragOn() {
  mDragOn = 1;
  scene().Randomize();
  Label15.Caption = ToText(Single(Int(scene().Rnd() * 10 + 1) / 1000));
  cmdAdvanced.Caption = "ON";
  cmdAdvanced.Enabled = false;
  Label23.Caption = ToText(Val(Label23.Caption) + 5);
  // The finest step, whatever HScroll1 says, and the velocity and elevation as they were left.
  Preview(0.059, PreviewOf::Drag);
}

// Comes about only where a Reset has enabled the button of a drag that was turned on among the fragments of a
// hit.
void QuintaraForm::TurnDragOff() {
  ShowTimeToImpact(flight.time);
  cmdAdvanced.Caption = "OFF";
  mDragOn = 0;
  Label15.Caption = "0";
  Label23.Caption = ToText(Val(Label23.Caption) - (5 - Val(Label25.Caption)) * 5);
}

void QuintaraForm::PrepareBonusShot() {
  mBonusShot = 1;
  gElevationRad = Val(Label1.Caption) * 3.1416 / 180;
  gMuzzleVelocity = Val(Label6.Caption);
}

}  // namespace quintara
