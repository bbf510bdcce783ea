#include "game/quintara.h"
#include "numbers/trigonometry.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr double rayLength = 100;
constexpr double groundFanHeight = 9200;  // the fan on the ground stands here wherever the marker is
constexpr double fragmentGround = 9040;
constexpr double fragmentElevation = 80;

// The five fragments of a hit: launch speed, and how far each goes sideways for a twip of its run.
struct FragmentRule {
  double speed;
  double sideways;
};
constexpr FragmentRule fragmentRules[] = {{260, 0.1}, {300, 0.1}, {280, -0.1}, {290, -0.1}, {270, -0.05}};

}  // namespace

// The rays stand on the slope struck: its normal, and the normal turned by 45 degrees either way.
void QuintaraForm::BurstOnSlope(double angle) {
  const Ray normal{slopeRayNormal, -rayLength * Cos(pi / 2 - angle), -rayLength * Sin(pi / 2 - angle)};
  const Ray toTheRight{slopeRayRight, -rayLength * Sin(angle - pi / 4), -rayLength * Cos(angle - pi / 4)};
  const Ray toTheLeft{slopeRayLeft, -rayLength * Cos(angle - pi / 4), rayLength * Sin(angle - pi / 4)};
  Burst({.nextStep = bonusNextStep,
         .restoresHeader = shotsFired.Caption < "5",
         .marker = shells(1),
         .impactY = shells(1).Top + shells(1).Width / 2,
         .rays = {normal, toTheRight, toTheLeft}});
}

// After the sixth shell the bonus header stays: "6" is not below "5".
void QuintaraForm::BurstOnGround() {
  Burst({.nextStep = bonusNextStep,
         .restoresHeader = shotsFired.Caption < "5",
         .marker = shells(0),
         .impactY = groundFanHeight,
         .rays = LevelFan()});
}

void QuintaraForm::BurstOnFoot() {
  Burst({// Four blanks before "the red", not five as in the other bursts: the line breaks the same.
         .nextStep =
             " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click    the red Fire button.",
         .restoresHeader = true,
         .marker = shells(0),
         .impactY = shells(0).Top + shells(0).Width / 2,
         .rays = LevelFan()});
}

std::array<QuintaraForm::Ray, 3> QuintaraForm::LevelFan() {
  return {{{levelRayUp, 0, -rayLength},
           {levelRayRight, rayLength * Sin(pi / 4), -rayLength * Cos(pi / 4)},
           {levelRayLeft, -rayLength * Sin(pi / 4), -rayLength * Cos(pi / 4)}}};
}

void QuintaraForm::Burst(const BurstRule& rule) {
  if (shotsFired.Caption == "5") {
    ShowBonusHeader(rule.nextStep);
  } else if (rule.restoresHeader) {
    ShowNormalHeader();
  }
  ChargeMiss();
  rule.marker.Visible = false;
  shared.PlayUnlessSoundIsOff(scene(), "bomb.wav");

  for (const Ray& ray : rule.rays) {
    ray.line.X2 = rule.marker.Left + rule.marker.Width / 2;
    ray.line.Y2 = rule.impactY;
  }
  for (const Ray& ray : rule.rays) {
    ray.line.X1 = ray.line.X2 + ray.right;
    ray.line.Y1 = ray.line.Y2 + ray.down;
  }
  for (const Ray& ray : rule.rays) ray.line.Visible = true;

  StartFlash();
  StopFlight();
}

// What a miss takes from the best score that can still be reached. Drag ends with the shell that it was
// chosen for.
void QuintaraForm::ChargeMiss() {
  if (dragIsOn_) {
    bestScore.Caption = ToText(Val(bestScore.Caption) - 15);
    dragIsOn_ = false;
    dragButton.Enabled = true;
    dragButton.Caption = "OFF";
    dragConstant.Caption = "0";
  } else {
    bestScore.Caption = ToText(Val(bestScore.Caption) - 10);
  }
  // The fifth shell's burst and the sixth's: shellInGun says 6 from the fifth Fire on.
  if (Val(shellInGun.Caption) == 6) {
    bestScore.Caption = ToText(Val(bestScore.Caption) + 5);
    dragButton.Enabled = false;
  }
}

void QuintaraForm::StopFlight() {
  shellTimer.Enabled = false;
  shellTimer.Interval = 0;
}

// One tick clears whatever flashed up: the muzzle flash, the flames on the target, the fans of a burst.
void QuintaraForm::EndFlash() {
  muzzleFlash.Visible = false;
  flames.Visible = false;
  for (Line* ray :
       {&slopeRayNormal, &slopeRayRight, &slopeRayLeft, &levelRayUp, &levelRayRight, &levelRayLeft})
    ray->Visible = false;
  flashTimer.Enabled = false;
}

void QuintaraForm::ThrowFragments() {
  scene().Randomize();
  for (std::int16_t& origin : fragmentOrigin_) origin = CInt(Int(scene().Rnd() * 300 + flames.Left));
}

// The fragments fly on, below the ground too, until Reset stops the timer; the fifth one decides when the
// game goes on.
void QuintaraForm::FlyFragments() {
  for (std::size_t i = 0; i < fragmentCount; ++i) MoveFragment(i);
  muzzleVelocity_ = fragmentRules[fragmentCount - 1].speed;  // drag turned on now is previewed with it
  if (!(fragment5.Top > fragmentGround)) return;
  if (Val(shotsFired.Caption) < 6) {
    advice.Caption = " Click Reset to continue the game";
  } else if (Val(shotsFired.Caption) == 6) {
    advice.Caption = " Click Reset to start a new game";
  }
  resetButton.Enabled = true;
  LockGun();
}

// A parabola over the fragment's run. The sines take 80 and 160 as radians, as every sine of the game does;
// the fragments' pretty arcs rest on it.
void QuintaraForm::MoveFragment(std::size_t i) {
  const auto& [speed, sideways] = fragmentRules[i];
  Shape& fragment = *Fragments()[i];
  fragment.Visible = true;
  const Single range = speed * speed * Sin(fragmentElevation + fragmentElevation) / 9.8;
  const double rise = speed * Sin(fragmentElevation);
  const Single apex = rise * rise / 19.6;
  fragmentRun_[i] = fragmentRun_[i] + 50;
  const double run = fragmentRun_[i];
  const Single height = (2 * apex / range) * run - run * run * (2 * apex / (range * range));
  fragment.Left = fragmentOrigin_[i] + run * sideways;
  fragment.Top = fragmentGround - height * 0.2;
}

}  // namespace quintara
