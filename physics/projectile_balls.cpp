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

// One second of the run along the rail, by Shape1.Left.
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

// One second of the fall, by mBallVy.
struct FallBand {
  Span velocity;
  int marks;  // how many ticks of the scale, up to its own, a fall on its own shows
  std::string_view metres;
  double shownVelocity;
  Effect effect = Effect::None;
  double lowerThan = 0;  // what Shape2.Top has to have passed as well
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

void ProjectileForm::StepHorizontalBall() {
  SetVisible(true, Line10, Line15, Line16, Label12, Image2, Shape10, Label15);
  if (mBallMode == linear) Label9.Visible = true;
  // The plunger has struck.
  Line6.X1 = 420;
  Line6.X2 = 560;
  Line6.BorderColor = 0x80000002;

  mBallRate = mBallMode == combined ? 375 : 750;
  mBallX = mBallRate * 0.05 + mBallX;
  Place(Shape1, mBallX + 500, 105);
  Place(Label1, mBallX + 560, 145);

  for (mLoopIndex = 0; mLoopIndex <= 7; ++mLoopIndex) {
    Line7(mLoopIndex).X1 = 1025 + 725 * mLoopIndex;
    Line7(mLoopIndex).X2 = 1025 + 725 * mLoopIndex;
  }
  if (mBallMode == linear && LiesInOneOf(railBeeps, Shape1.Left)) scene().Beep();
  PassRailBand();
}

void ProjectileForm::PassRailBand() {
  for (std::int16_t k = 0; k < bandCount; ++k) {
    const RailBand& band = railBands[k];
    if (!band.place.Holds(Shape1.Left)) continue;
    if (mBallMode == linear) SetVisible(true, Line7(k), Label8(k));
    MoveHand(k + 1);
    Label8(k).Left = Line7(k).X1 - 120;
    Label8(k).Caption = band.metres;
    if (band.effect == Effect::OffersReset) OfferReset();
    if (band.effect == Effect::EndsRun) {
      scene().Beep();
      StopTimer();
    }
    return;
  }
}

void ProjectileForm::StepFallingBall() {
  SetVisible(true, Line12, Line19, Line20, Label14, Image3, Shape11, Label16);
  Place(Shape11, 370, 650);
  Place(Label16, 440, 690);
  Fall();
  DrawFall();
  if (LiesInOneOf(fallBeeps, Line2.X2)) scene().Beep();
  PassFallBand();
}

// Beside ball 1 the rate is its 375, half of that of a ball alone: both steps add to mBallX, so that a second
// is as long as ever.
void ProjectileForm::Fall() {
  if (mBallMode == falling) mBallRate = 750;
  mBallX = mBallRate * 0.05 + mBallX;
  mBallVy = mBallVy - 0.49;
  mBallY = mBallVy * 0.05 + mBallY + 0.05 * 0.05 * (0.5 * -9.8);
  // Nothing need run along the rail: the hidden line carries the place there that the beeps go by.
  Line2.Visible = false;
  Line2.X2 = mBallX + 500;
}

void ProjectileForm::DrawFall() {
  Place(Shape2, 0, 480 - mBallY * 12.8);
  Place(Label2, 60, 520 - mBallY * 12.8);
  // The trap hangs open.
  Line4.X1 = 300;
  Line4.Y1 = 960;

  Line1.X1 = Shape2.Width + Shape2.Left;
  if (mBallMode == falling) {
    Line1.X2 = 6500;
    Label9.Visible = true;
  }
  Line1.Y1 = Shape2.Width / 2 + Shape2.Top;
  Line1.Y2 = Shape2.Width / 2 + Shape2.Top;

  Line12.Y1 = FallArrow() + Line12.Y2;
  Label14.Top = FallArrow() + 870;
  Image3.Top = FallArrow() + 870;
  Line19.Lay({Line12.X1, Line12.Y1 + 60, Line12.X1 + 60, Line12.Y1});
  Line20.Lay({Line12.X1, Line12.Y1 + 60, Line12.X1 - 60, Line12.Y1});
}

// The band's tick and number go along with the ball and stay where it left the band.
void ProjectileForm::PassFallBand() {
  for (std::int16_t k = 0; k < bandCount; ++k) {
    const FallBand& band = fallBands[k];
    if (!band.velocity.Holds(mBallVy) || !(Shape2.Top > band.lowerThan)) continue;
    if (mBallMode == falling) {
      for (mLoopIndex = static_cast<std::int16_t>(k - band.marks + 1); mLoopIndex <= k; ++mLoopIndex)
        SetVisible(true, Line9(mLoopIndex), Label4(mLoopIndex));
    }
    Line9(k).Y1 = 640 - mBallY * 12.8;
    Line9(k).Y2 = 640 - mBallY * 12.8;
    Label4(k).Top = 520 - mBallY * 12.8;
    Label4(k).Caption = band.metres;
    MoveHand(k + 1);
    mShownVy = band.shownVelocity;
    Label14.Caption = "= " + ToText(mShownVy) + " m/s";
    if (band.effect == Effect::OffersReset) OfferReset();
    if (band.effect == Effect::EndsRun) StopTimer();
    return;
  }
}

void ProjectileForm::StepCombinedBall() {
  Label9.Visible = false;
  Line5.X1 = 420;
  Line5.X2 = 560;
  SetVisible(true, Shape3, Label3, Line2);
  Place(Shape3, Shape1.Left, Shape2.Top);
  Place(Label3, Label1.Left, Label2.Top);
  Line1.X1 = Shape3.Width + Shape3.Left;
  Line1.X2 = Shape2.Width + Shape2.Left;

  DrawWidth = 2;
  PSet(Shape3.Left - 20, Shape3.Top + 60, QBColor(6));
  LaySightLine();

  SetVisible(true, Line10, Line11, Line12, Line15, Line16, Line17, Line18, Line19, Line20, Line21, Line22);
  SetVisible(true, Shape12, Label17);
  Place(Shape12, 370, 650);
  Place(Label17, 440, 690);
  LayResultant();
}

// From ball 1 down to ball 3.
void ProjectileForm::LaySightLine() {
  Line2.X1 = Shape1.Width / 2 + Shape1.Left;
  Line2.X2 = Shape1.Width / 2 + Shape1.Left;
  Line2.Y1 = Shape1.Width + Shape1.Top;
  Line2.Y2 = Shape3.Top;
}

// Ball 2, which ball 3 falls with, has laid the arrow downwards, Line12, in this very tick.
void ProjectileForm::LayResultant() {
  Line11.X1 = Line10.X2;
  Line11.Y1 = FallArrow() + Line12.Y2;
  mArrowRad = Atn((Line11.Y1 - Line10.Y1) / (Line10.X2 - Line10.X1));
  mArrowComplement = 3.1416 / 2 - mArrowRad;

  Line15.Lay({Line10.X2 + 60, Line10.Y2, Line10.X2, Line10.Y2 - 60});
  Line16.Lay({Line10.X2 + 60, Line10.Y2, Line10.X2, Line10.Y2 + 60});

  const double x = Line11.X1, y = Line11.Y1, a = mArrowRad, b = mArrowComplement;
  const double tipX = x + 60 * Cos(a), tipY = y + 60 * Sin(a);
  Line17.Lay({tipX, tipY, x + 60 * Sin(a), y - 60 * Cos(a)});
  Line18.Lay({tipX, tipY, x - 60 * Cos(b), y + 60 * Sin(b)});

  Line21.Y2 = Line17.Y1;
  Line22.Y1 = Line17.Y1;
  Line22.Y2 = Line17.Y1;
}

// Position 8 is the top again.
void ProjectileForm::MoveHand(int position) {
  Line8.X2 = mDialX + (mDialBase + 80) * Sin(position * mDialStep);
  Line8.Y2 = mDialY - (mDialBase + 80) * Cos(position * mDialStep);
}

void ProjectileForm::OfferReset() {
  Label7.Visible = true;
  cmdReset.Enabled = true;
}

}  // namespace quintara
