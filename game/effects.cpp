#include "game/quintara.h"
#include "numbers/trigonometry.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr double rayLength = 100;
constexpr double groundFanHeight = 9200;  // the fan on the ground stands here wherever the marker is
constexpr double fragmentGround = 9040;

// The five fragments of a hit: launch speed, and how far each goes sideways for a twip of its run.
struct FragmentRule {
  double speed;
  double sideways;
};
constexpr FragmentRule fragmentRules[] = {{260, 0.1}, {300, 0.1}, {280, -0.1}, {290, -0.1}, {270, -0.05}};

}  // namespace

// The rays stand on the slope struck: its normal, and the normal turned by 45 degrees either way.
void QuintaraForm::BurstOnProfile() {
  const double alpha = mImpactSlope;
  const Ray normal{Line28, -rayLength * Cos(3.1416 / 2 - alpha), -rayLength * Sin(3.1416 / 2 - alpha)};
  const Ray toTheRight{Line29, -rayLength * Sin(alpha - 3.1416 / 4), -rayLength * Cos(alpha - 3.1416 / 4)};
  const Ray toTheLeft{Line30, -rayLength * Cos(alpha - 3.1416 / 4), rayLength * Sin(alpha - 3.1416 / 4)};
  Burst({.nextStep = bonusNextStep,
         .restoresHeader = Label25.Caption < "5",
         .marker = Shape1(1),
         .impactY = Shape1(1).Top + Shape1(1).Width / 2,
         .rays = {normal, toTheRight, toTheLeft}});
}

// After the sixth shell the bonus header stays: "6" is not below "5".
void QuintaraForm::BurstOnGround() {
  Burst({.nextStep = bonusNextStep,
         .restoresHeader = Label25.Caption < "5",
         .marker = Shape1(0),
         .impactY = groundFanHeight,
         .rays = LevelFan()});
}

void QuintaraForm::BurstOnMountainFace() {
  Burst({// Four blanks before "the red", not five as in the other bursts: the line breaks the same.
         .nextStep =
             " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click    the red Fire button.",
         .restoresHeader = true,
         .marker = Shape1(0),
         .impactY = Shape1(0).Top + Shape1(0).Width / 2,
         .rays = LevelFan()});
}

std::array<QuintaraForm::Ray, 3> QuintaraForm::LevelFan() {
  return {{{Line37, 0, -rayLength},
           {Line36, rayLength * Sin(3.1416 / 4), -rayLength * Cos(3.1416 / 4)},
           {Line38, -rayLength * Sin(3.1416 / 4), -rayLength * Cos(3.1416 / 4)}}};
}

void QuintaraForm::Burst(const BurstRule& rule) {
  if (Label25.Caption == "5") {
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

  Timer1.Interval = 400;
  Timer1.Enabled = true;
  StopFlight();
}

// What a miss takes from the maximum score. Drag ends with the shell that it was chosen for.
void QuintaraForm::ChargeMiss() {
  if (mDragOn == 0) {
    Label23.Caption = ToText(Val(Label23.Caption) - 10);
  } else {
    Label23.Caption = ToText(Val(Label23.Caption) - 15);
    mDragOn = 0;
    cmdAdvanced.Enabled = true;
    cmdAdvanced.Caption = "OFF";
    Label15.Caption = "0";
  }
  // The fifth shell's burst and the sixth's: Label21 says 6 from the fifth Fire on.
  if (Val(Label21.Caption) == 6) {
    Label23.Caption = ToText(Val(Label23.Caption) + 5);
    cmdAdvanced.Enabled = false;
  }
}

void QuintaraForm::StopFlight() {
  tmrShell.Enabled = false;
  tmrShell.Interval = 0;
}

// One tick clears whatever flashed up: the muzzle flash, the flames on the target, the fans of a burst.
void QuintaraForm::Timer1_Timer() {
  Line12.Visible = false;
  Image8.Visible = false;
  for (Line* ray : {&Line28, &Line29, &Line30, &Line37, &Line36, &Line38}) ray->Visible = false;
  Timer1.Enabled = false;
}

void QuintaraForm::ThrowFragments() {
  scene().Randomize();
  for (std::int16_t& origin : mFragOrigin) origin = CInt(Int(scene().Rnd() * 300 + Image8.Left));
}

// The fragments fly on, below the ground too, until Reset stops the timer; the fifth one decides when the
// game goes on.
void QuintaraForm::tmrExplode_Timer() {
  gElevationScroll = 80;
  for (std::size_t i = 0; i < fragmentCount; ++i) MoveFragment(i);
  if (!(shpExplode5.Top > fragmentGround)) return;
  if (Val(Label25.Caption) < 6) {
    Label4.Caption = " Click Reset to continue the game";
  } else if (Val(Label25.Caption) == 6) {
    Label4.Caption = " Click Reset to start a new game";
  }
  cmdReset.Enabled = true;
  Image7.Enabled = false;
  VScroll1.Enabled = false;
  VScroll2.Enabled = false;
  cmdAdvanced.Enabled = false;
}

// A parabola over the fragment's run. The sines take 80 and 160 as radians, as every sine of the game does;
// the fragments' pretty arcs rest on it.
void QuintaraForm::MoveFragment(std::size_t i) {
  const auto& [speed, sideways] = fragmentRules[i];
  Shape& fragment = *Fragments()[i];
  fragment.Visible = true;
  gMuzzleVelocity = speed;
  mFragRange = gMuzzleVelocity * gMuzzleVelocity * Sin(gElevationScroll + gElevationScroll) / 9.8;
  const double rise = gMuzzleVelocity * Sin(gElevationScroll);
  mFragApex = rise * rise / 19.6;
  mFragRun[i] = mFragRun[i] + 50;
  const double s = mFragRun[i];
  mFragHeight[i] = (2 * mFragApex / mFragRange) * s - s * s * (2 * mFragApex / (mFragRange * mFragRange));
  fragment.Left = mFragOrigin[i] + mFragRun[i] * sideways;
  fragment.Top = fragmentGround - mFragHeight[i] * 0.2;
}

}  // namespace quintara
