#include <string>
#include <string_view>

#include "numbers/numbers.h"
#include "numbers/trigonometry.h"
#include "physics/projectile.h"
#include "scene/scene.h"

namespace quintara {
namespace {

// What lies strictly between two limits: a ball on a limit is in neither of the bands that meet there. The
// limits are singles, as the velocities that are held against them are.
struct Span {
  Single above, below;
  bool Holds(double value) const { return value > above && value < below; }
};
constexpr double noLimit = 1e30;
constexpr std::int16_t bandCount = 8;

// What comes with a band beside its numbers.
enum class Effect { None, OffersReset, EndsRun };

// One second of the run along the rail, by ball1.Left.
struct RailBand {
  Span place;
  std::string_view metres;
  Effect effect = Effect::None;
};
// From 5900 to 5940 the ball is in none of them.
constexpr RailBand railBands[bandCount] = {
    {{825, 1550}, "70"},
    {{1550, 2275}, "140"},
    {{2275, 3000}, "210"},
    {{3000, 3725}, "280"},
    {{3725, 4450}, "350"},
    {{4450, 5175}, "420"},
    {{5175, 5900}, "490", Effect::OffersReset},
    {{5940, noLimit}, "560", Effect::EndsRun},
};

// One second of the fall, by fallVelocity.
struct FallBand {
  Span velocity;
  int marks;  // how many ticks of the scale, up to its own, a fall on its own shows
  std::string_view metres;
  double shownVelocity;
  Effect effect = Effect::None;
  double lowerThan = 0;  // what ball2.Top has to have passed as well
};
// The first that holds counts, so the last takes what is too fast for the others, once it is near the ground.
constexpr FallBand fallBands[bandCount] = {
    {{-9.8, 0}, 0, "0", 0},
    {{-19.6, -9.8}, 2, "4.9", -9.8},
    {{-29.4, -19.6}, 1, "19.6", -19.6},
    {{-39.2, -29.4}, 1, "44.1", -29.4},
    {{-49, -39.2}, 1, "78.4", -39.2},
    {{-58.8, -49}, 1, "122.5", -49},
    {{-68.6, -58.8}, 1, "176.4", -58.8, Effect::OffersReset},
    {{-noLimit, noLimit}, 0, "", -68.6, Effect::EndsRun, 3800},
};

// Where a second is heard. Each is passed in a single tick.
constexpr Span railBeeps[] = {
    {825, 850},  // half as wide as the others, and meant so: the ball passes it at 837.5
    {1550, 1600}, {2275, 2325}, {3000, 3050}, {3725, 3775}, {4450, 4500}, {5175, 5225},
};
constexpr Span fallBeeps[] = {{825, 875},   {1550, 1600}, {2275, 2325}, {3000, 3050},
                              {3725, 3775}, {4450, 4500}, {5175, 5225}, {5800, 5850}};

template <typename Spans>
bool LiesInOneOf(const Spans& spans, double value) {
  for (const Span& span : spans) {
    if (span.Holds(value)) return true;
  }
  return false;
}

}  // namespace

void ProjectileForm::StepBall1() {
  SetVisible(true, xArrow, xUpperBarb, xLowerBarb, vxText, vxSymbol, panelBall1, panelDigit1);
  if (run_ == Run::Linear) metresText.Visible = true;
  // The plunger has struck.
  plunger1.X1 = 420;
  plunger1.X2 = 560;
  plunger1.BorderColor = 0x80000002;

  RunOn();
  Place(ball1, way_ + 500, 105);
  Place(digit1, way_ + 560, 145);

  for (std::int16_t k = 0; k < bandCount; ++k) {
    railTicks(k).X1 = 1025 + 725 * k;
    railTicks(k).X2 = 1025 + 725 * k;
  }
  if (run_ == Run::Linear && LiesInOneOf(railBeeps, ball1.Left)) scene().Beep();
  PassRailBand();
}

void ProjectileForm::PassRailBand() {
  for (std::int16_t k = 0; k < bandCount; ++k) {
    const RailBand& band = railBands[k];
    if (!band.place.Holds(ball1.Left)) continue;
    if (run_ == Run::Linear) SetVisible(true, railTicks(k), railNumbers(k));
    MoveHand(k + 1);
    railNumbers(k).Left = railTicks(k).X1 - 120;
    railNumbers(k).Caption = band.metres;
    if (band.effect == Effect::OffersReset) OfferReset();
    if (band.effect == Effect::EndsRun) {
      scene().Beep();
      StopTimer();
    }
    return;
  }
}

void ProjectileForm::StepBall2() {
  SetVisible(true, yArrow, yRightBarb, yLeftBarb, vyText, vySymbol, panelBall2, panelDigit2);
  Place(panelBall2, 370, 650);
  Place(panelDigit2, 440, 690);
  Fall();
  DrawFall();
  if (LiesInOneOf(fallBeeps, sightLineDown.X2)) scene().Beep();
  PassFallBand();
}

// Comes with each step of ball 1 and of ball 2. Where both run, each brings half of the way, so that a second
// is as long as ever.
void ProjectileForm::RunOn() {
  const double twipsPerSecond = run_ == Run::Combined ? 375 : 750;
  way_ = twipsPerSecond * 0.05 + way_;
}

void ProjectileForm::Fall() {
  RunOn();
  fallVelocity_ = fallVelocity_ - 0.49;
  fallHeight_ = fallVelocity_ * 0.05 + fallHeight_ + 0.05 * 0.05 * (0.5 * -9.8);
  // Nothing need run along the rail: the hidden line carries the place there that the beeps go by.
  sightLineDown.Visible = false;
  sightLineDown.X2 = way_ + 500;
}

void ProjectileForm::DrawFall() {
  Place(ball2, 0, 480 - fallHeight_ * 12.8);
  Place(digit2, 60, 520 - fallHeight_ * 12.8);
  // The trap hangs open.
  trap.X1 = 300;
  trap.Y1 = 960;

  sightLineAcross.X1 = ball2.Width + ball2.Left;
  if (run_ == Run::Fall) {
    sightLineAcross.X2 = 6500;
    metresText.Visible = true;
  }
  sightLineAcross.Y1 = ball2.Width / 2 + ball2.Top;
  sightLineAcross.Y2 = ball2.Width / 2 + ball2.Top;

  yArrow.Y1 = FallArrow() + yArrow.Y2;
  vyText.Top = FallArrow() + 870;
  vySymbol.Top = FallArrow() + 870;
  yRightBarb.Lay({yArrow.X1, yArrow.Y1 + 60, yArrow.X1 + 60, yArrow.Y1});
  yLeftBarb.Lay({yArrow.X1, yArrow.Y1 + 60, yArrow.X1 - 60, yArrow.Y1});
}

// The band's tick and number go along with the ball and stay where it left the band.
void ProjectileForm::PassFallBand() {
  for (std::int16_t k = 0; k < bandCount; ++k) {
    const FallBand& band = fallBands[k];
    if (!band.velocity.Holds(fallVelocity_) || !(ball2.Top > band.lowerThan)) continue;
    if (run_ == Run::Fall) {
      for (auto marked = static_cast<std::int16_t>(k - band.marks + 1); marked <= k; ++marked)
        SetVisible(true, fallTicks(marked), fallNumbers(marked));
    }
    fallTicks(k).Y1 = 640 - fallHeight_ * 12.8;
    fallTicks(k).Y2 = 640 - fallHeight_ * 12.8;
    fallNumbers(k).Top = 520 - fallHeight_ * 12.8;
    fallNumbers(k).Caption = band.metres;
    MoveHand(k + 1);
    vyText.Caption = "= " + ToText(Single(band.shownVelocity)) + " m/s";
    if (band.effect == Effect::OffersReset) OfferReset();
    if (band.effect == Effect::EndsRun) StopTimer();
    return;
  }
}

void ProjectileForm::StepBall3() {
  metresText.Visible = false;
  plunger3.X1 = 420;
  plunger3.X2 = 560;
  SetVisible(true, ball3, digit3, sightLineDown);
  Place(ball3, ball1.Left, ball2.Top);
  Place(digit3, digit1.Left, digit2.Top);
  sightLineAcross.X1 = ball3.Width + ball3.Left;
  sightLineAcross.X2 = ball2.Width + ball2.Left;

  DrawWidth = 2;
  PSet(ball3.Left - 20, ball3.Top + 60, QBColor(6));
  LaySightLineDown();

  SetVisible(true, xArrow, resultantArrow, yArrow, xUpperBarb, xLowerBarb, resultantUpperBarb,
             resultantLowerBarb, yRightBarb, yLeftBarb, guideDown, guideAcross);
  SetVisible(true, panelBall3, panelDigit3);
  Place(panelBall3, 370, 650);
  Place(panelDigit3, 440, 690);
  LayResultant();
}

// From ball 1 down to ball 3.
void ProjectileForm::LaySightLineDown() {
  sightLineDown.X1 = ball1.Width / 2 + ball1.Left;
  sightLineDown.X2 = ball1.Width / 2 + ball1.Left;
  sightLineDown.Y1 = ball1.Width + ball1.Top;
  sightLineDown.Y2 = ball3.Top;
}

// Ball 2, which ball 3 falls with, has laid the arrow downwards in this very tick.
void ProjectileForm::LayResultant() {
  resultantArrow.X1 = xArrow.X2;
  resultantArrow.Y1 = FallArrow() + yArrow.Y2;
  const Single angle = Atn((resultantArrow.Y1 - xArrow.Y1) / (xArrow.X2 - xArrow.X1));
  const Single complement = 3.1416 / 2 - angle;

  xUpperBarb.Lay({xArrow.X2 + 60, xArrow.Y2, xArrow.X2, xArrow.Y2 - 60});
  xLowerBarb.Lay({xArrow.X2 + 60, xArrow.Y2, xArrow.X2, xArrow.Y2 + 60});

  const double x = resultantArrow.X1, y = resultantArrow.Y1;
  const double tipX = x + 60 * Cos(angle), tipY = y + 60 * Sin(angle);
  resultantUpperBarb.Lay({tipX, tipY, x + 60 * Sin(angle), y - 60 * Cos(angle)});
  resultantLowerBarb.Lay({tipX, tipY, x - 60 * Cos(complement), y + 60 * Sin(complement)});

  guideDown.Y2 = resultantUpperBarb.Y1;
  guideAcross.Y1 = resultantUpperBarb.Y1;
  guideAcross.Y2 = resultantUpperBarb.Y1;
}

// Position 8 is the top again.
void ProjectileForm::MoveHand(int position) {
  dialHand.X2 = dialX + handLength * Sin(position * dialStep);
  dialHand.Y2 = dialY - handLength * Cos(position * dialStep);
}

void ProjectileForm::OfferReset() {
  resetHint.Visible = true;
  resetButton.Enabled = true;
}

}  // namespace quintara
