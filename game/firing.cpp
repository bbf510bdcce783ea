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
  shellIsArmed_ = true;
  sightLine.Visible = false;
  TakeLaying();
  Launch(flight, muzzleVelocity_, muzzleElevation_);
  flight.dt = flightTimeBar.Value * finestStep;
  shellTimer.Interval = 17;
  shellTimer.Enabled = true;

  muzzleFlash.Visible = true;
  StartFlash();
  shared.PlayUnlessSoundIsOff(scene(), "biggun.wav");

  CountShell();
  if (Val(shotsFired.Caption) == 5) bonusShot_ = true;
}

void QuintaraForm::StartFlash() {
  flashTimer.Interval = 400;
  flashTimer.Enabled = true;
}

void QuintaraForm::CountShell() {
  if (shellInGun.Caption == "6") {
    FireBonusShell();
    return;
  }
  // The marks go from the top of the column down. A caption that names no shell counts none.
  const double inGun = Val(shellInGun.Caption);
  for (std::int16_t shell = 1, mark = shellMarkCount - 1; mark >= 0; ++shell, --mark) {
    if (shell != inGun) continue;
    shellInGun.Caption = ToText(shell + 1);
    shotsFired.Caption = ToText(shell);
    shellMarks(mark).Visible = false;
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
  LockGun();
}

void QuintaraForm::LockGun() {
  fireButton.Enabled = false;
  elevationBar.Enabled = false;
  velocityBar.Enabled = false;
  dragButton.Enabled = false;
}

void QuintaraForm::FlyShell() {
  if (!shellIsArmed_) return;
  if (flight.y < 0) {
    // The shell is under ground and nothing was hit: the flight ends, but this tick still runs to its end and
    // may hit something after all.
    StopFlight();
    shells(0).Visible = false;
  }
  flight.dt = flightTimeBar.Value * finestStep;
  BallisticStep(flight, Val(dragConstant.Caption));
  MoveShell();
  TestForImpact();
}

// The shell has two markers, since a picture box hides what lies behind it: shells(0) in the open, and
// shells(1) inside the mountain's box.
void QuintaraForm::MoveShell() {
  const Place inProfile = InProfile(flight.x, flight.y), inMountain = InMountain(flight.x, flight.y);
  shells(0).Left = inProfile.x;
  shells(0).Top = inProfile.y;
  shells(1).Visible = true;
  shells(1).Left = inMountain.x;
  shells(1).Top = inMountain.y;

  // The range bar grows to the end; the height bar stays where the shell was highest.
  rangeBar.X1 = shells(0).Left + 380;
  rangeBar.Visible = true;
  heightBar.Visible = true;
  if (flight.vy > 0) heightBar.Y2 = shells(0).Top;
  shells(0).Visible = true;
}

QuintaraForm::Place QuintaraForm::InProfile(Single x, Single y) {
  return {x * 0.438, 9250 - y * 0.55};
}
// The same in the mountain's box, which has its own origin.
QuintaraForm::Place QuintaraForm::InMountain(Single x, Single y) const {
  return {x * 0.438 - 790, mountainHeight_ + 640 - y * 0.55};
}

void QuintaraForm::LightRing() {
  fireRing.BorderColor = ringLit;
}
void QuintaraForm::DimRing() {
  fireRing.BorderColor = ringAtRest;
}

}  // namespace quintara
