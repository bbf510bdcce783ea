#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr Colour ringAtRest = 0x808080;
constexpr Colour ringLit = 0xFFFFFF;

}  // namespace

// Fires whatever is in the gun, also while a shell is in the air: that one is lost and the next one used up.
void QuintaraForm::Image7_Click() {
  Shape5.BorderColor = ringAtRest;
  mShellArmed = 1;
  Line24.Visible = false;
  gElevationRad = (Val(Label1.Caption) * 3.1416) / 180;  // 3.1416 is the game's pi
  gMuzzleVelocity = Val(Label6.Caption);
  Launch(flight, gMuzzleVelocity, gElevationRad);
  flight.dt = HScroll1.Value * 0.059;
  tmrShell.Interval = 17;
  tmrShell.Enabled = true;

  Line12.Visible = true;
  Timer1.Interval = 400;
  Timer1.Enabled = true;
  shared.PlayUnlessSoundIsOff(scene(), "biggun.wav");

  CountShell();
  if (Val(Label25.Caption) == 5) PrepareBonusShot();
}

void QuintaraForm::CountShell() {
  if (Label21.Caption == "6") {
    FireBonusShell();
    return;
  }
  const double shell = Val(Label21.Caption);
  for (std::int16_t n = 5; n >= 1; --n) {
    if (shell != n) continue;
    Label21.Caption = ToText(n + 1);
    Label25.Caption = ToText(n);
    Shape6(static_cast<std::int16_t>(5 - n)).Visible = false;  // the marks go from the top of the column down
  }
}

void QuintaraForm::FireBonusShell() {
  Label21.Visible = false;
  Label25.Caption = "6";
  Image6.Visible = false;
  Picture5.Cls();
  Picture11.Cls();
  cmdReset.Enabled = true;
  Label4.Caption = " Click Reset to start a new game";
  Image7.Enabled = false;
  VScroll1.Enabled = false;
  VScroll2.Enabled = false;
  cmdAdvanced.Enabled = false;
}

void QuintaraForm::tmrShell_Timer() {
  if (mShellArmed != 1) return;
  if (flight.y < 0) {
    // The shell is under ground and nothing was hit: the flight ends, but this tick still runs to its end and
    // may hit something after all.
    StopFlight();
    Shape1(0).Visible = false;
  }
  flight.dt = HScroll1.Value * 0.059;
  BallisticStep(flight, Val(Label15.Caption));
  MoveShell();
  TestForImpact();
}

// The shell has two markers, since a picture box hides what lies behind it: Shape1(0) in the open, and
// Shape1(1) inside the mountain's box.
void QuintaraForm::MoveShell() {
  Shape1(0).Left = flight.x * 0.438;
  Shape1(0).Top = 9250 - flight.y * 0.55;
  Shape1(1).Visible = true;
  Shape1(1).Left = flight.x * 0.438 - 790;
  Shape1(1).Top = (mProfileHeight + 640) - flight.y * 0.55;

  // The range bar grows to the end; the height bar stays where the shell was highest.
  Line8.X1 = Shape1(0).Left + 380;
  Line8.Visible = true;
  Line9.Visible = true;
  if (flight.vy > 0) Line9.Y2 = Shape1(0).Top;
  Shape1(0).Visible = true;
}

void QuintaraForm::Image7_MouseMove() {
  Shape5.BorderColor = ringLit;
}
void QuintaraForm::Picture8_MouseMove() {
  Shape5.BorderColor = ringAtRest;
}
void QuintaraForm::cmdReset_MouseMove() {
  Shape5.BorderColor = ringAtRest;
}

}  // namespace quintara
