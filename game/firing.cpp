#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr Colour ringAtRest = 0x808080;
constexpr Colour ringLit = 0xFFFFFF;

}  // namespace

// Fires whatever is in the gun, also while a shell is in the air: that one is lost and the next one used up.
void QuintaraForm::Fire() {
  fireRing.BorderColor = ringAtRest;
  mShellArmed = 1;
  sightLine.Visible = false;
  gElevationRad = (Val(elevation.Caption) * 3.1416) / 180;  // 3.1416 is the game's pi
  gMuzzleVelocity = Val(velocity.Caption);
  Launch(flight, gMuzzleVelocity, gElevationRad);
  flight.dt = flightTimeBar.Value * 0.059;
  shellTimer.Interval = 17;
  shellTimer.Enabled = true;

  muzzleFlash.Visible = true;
  flashTimer.Interval = 400;
  flashTimer.Enabled = true;
  shared.PlayUnlessSoundIsOff(scene(), "biggun.wav");

  CountShell();
  if (Val(shotsFired.Caption) == 5) PrepareBonusShot();
}

void QuintaraForm::CountShell() {
  if (shellInGun.Caption == "6") {
    FireBonusShell();
    return;
  }
  const double shell = Val(shellInGun.Caption);
  for (std::int16_t n = 5; n >= 1; --n) {
    if (shell != n) continue;
    shellInGun.Caption = ToText(n + 1);
    shotsFired.Caption = ToText(n);
    shellMarks(static_cast<std::int16_t>(5 - n)).Visible =
        false;  // the marks go from the top of the column down
  }
}

void QuintaraForm::FireBonusShell() {
  shellInGun.Visible = false;
  shotsFired.Caption = "6";
  shellGauge.Visible = false;
  profile.Cls();
  mountain.Cls();
  resetButton.Enabled = true;
  advice.Caption = " Click Reset to start a new game";
  fireButton.Enabled = false;
  elevationBar.Enabled = false;
  velocityBar.Enabled = false;
  dragButton.Enabled = false;
}

void QuintaraForm::FlyShell() {
  if (mShellArmed != 1) return;
  if (flight.y < 0) {
    // The shell is under ground and nothing was hit: the flight ends, but this tick still runs to its end and
    // may hit something after all.
    StopFlight();
    shells(0).Visible = false;
  }
  flight.dt = flightTimeBar.Value * 0.059;
  BallisticStep(flight, Val(dragConstant.Caption));
  MoveShell();
  TestForImpact();
}

// The shell has two markers, since a picture box hides what lies behind it: shells(0) in the open, and
// shells(1) inside the mountain's box.
void QuintaraForm::MoveShell() {
  shells(0).Left = flight.x * 0.438;
  shells(0).Top = 9250 - flight.y * 0.55;
  shells(1).Visible = true;
  shells(1).Left = flight.x * 0.438 - 790;
  shells(1).Top = (mProfileHeight + 640) - flight.y * 0.55;

  // The range bar grows to the end; the height bar stays where the shell was highest.
  rangeBar.X1 = shells(0).Left + 380;
  rangeBar.Visible = true;
  heightBar.Visible = true;
  if (flight.vy > 0) heightBar.Y2 = shells(0).Top;
  shells(0).Visible = true;
}

void QuintaraForm::LightRing() {
  fireRing.BorderColor = ringLit;
}
void QuintaraForm::DimRing() {
  fireRing.BorderColor = ringAtRest;
}

}  // namespace quintara
