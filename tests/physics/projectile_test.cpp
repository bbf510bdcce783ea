#include "physics/projectile.h"

#include <cmath>

#include "tests/physics/demonstration.h"

namespace quintara {
namespace {

// Where everything stands at the end of a run, to the last digit, is in the transcript of the golden flights.
class ProjectileTest : public DemonstrationTest<ProjectileForm> {
 protected:
  void Ticks(int count) { Advance(50 * count); }
  // Ticks to the end of the run that a ball's button has begun; gives the ticks that beep, and the last one.
  std::vector<int> ToTheEnd() {
    std::vector<int> ticks;
    int tick = 0;
    Beeps();
    while (form.ballTimer.Enabled && tick < 1000) {
      ++tick;
      Ticks(1);
      if (Beeps() > 0) ticks.push_back(tick);
    }
    ticks.push_back(tick);
    return ticks;
  }
  void ExpectHand(int position) {
    const double angle = position * 3.14159265 / 4, length = position == 0 ? 270 : 280;
    ExpectEnds(form.dialHand, {500, 500, 500 + length * std::sin(angle), 500 - length * std::cos(angle)});
  }

  static std::vector<const Box*> Moved(const ProjectileForm& bench) {
    return {&bench.ball1, &bench.digit1, &bench.ball2, &bench.digit2, &bench.ball3, &bench.digit3};
  }
  static std::vector<const Line*> Laid(const ProjectileForm& bench) {
    return {&bench.trap, &bench.plunger1, &bench.plunger3, &bench.dialHand};
  }

  std::vector<CommandButton*> buttons{&form.ball1Button, &form.ball2Button, &form.ball3Button};
};

const std::vector<int> ticksOfRail = {9, 29, 48, 67, 87, 106, 125, 146, 146};
const std::vector<int> ticksOfFall = {9, 29, 48, 67, 87, 106, 125, 142, 145};

TEST_F(ProjectileTest, BeepsAndEndsOfTheThreeRuns) {
  const struct {
    CommandButton& button;
    std::vector<int> ticks;
    double across, down;  // where balls 1 and 2 end
  } cases[] = {{form.ball1Button, ticksOfRail, 5975, 480},
               {form.ball2Button, ticksOfFall, 480, 3822.195},
               {form.ball3Button, ticksOfFall, 5918.75, 3822.195}};
  for (const auto& [button, ticks, across, down] : cases) {
    Click(button);
    for (CommandButton* each : buttons) EXPECT_EQ(UserClicks(*each), InputResult::NoTarget);
    EXPECT_EQ(ToTheEnd(), ticks) << button.name();
    ExpectPlace(form.ball1, across, &button == &form.ball2Button ? 120 : 105);
    ExpectPlace(form.ball2, 0, down);
    for (CommandButton* each : buttons) EXPECT_FALSE(each->Enabled) << "only Reset leads on";
    Click(form.resetButton);
  }
}

TEST_F(ProjectileTest, TheRailAndTheDialGoWithTheBall) {
  Click(form.ball1Button);
  Ticks(8);
  ExpectHand(0);
  EXPECT_FALSE(form.railTicks(0).Visible || form.railNumbers(0).Visible);
  Ticks(1);
  ExpectHand(1);
  Ticks(115);
  EXPECT_FALSE(form.resetHint.Visible || form.resetButton.Enabled);
  Ticks(1);
  EXPECT_TRUE(form.resetHint.Visible && form.resetButton.Enabled);
  Ticks(20);
  ExpectHand(7);
  EXPECT_FALSE(form.railTicks(7).Visible) << "between the last two bands";
  Ticks(1);
  ExpectHand(8);
  for (std::int16_t k = 0; k < 8; ++k) {
    EXPECT_TRUE(form.railTicks(k).Visible && form.railNumbers(k).Visible) << k;
    EXPECT_EQ(form.railNumbers(k).Caption, std::to_string(70 * (k + 1)));
  }
  EXPECT_TRUE(form.metresText.Visible && form.xArrow.Visible && form.vxText.Visible &&
              form.panelBall1.Visible);
  EXPECT_FALSE(form.yArrow.Visible || form.panelBall2.Visible || form.fallNumbers(0).Visible ||
               form.resultantArrow.Visible);
}

TEST_F(ProjectileTest, TheFallIsMarkedWhereEachBandEnds) {
  const struct {
    int lastTick;
    const char *metres, *velocity;
  } bands[] = {{20, "0", "= 0 m/s"},         {40, "4.9", "= -9.8 m/s"},   {60, "19.6", "= -19.6 m/s"},
               {79, "44.1", "= -29.4 m/s"},  {99, "78.4", "= -39.2 m/s"}, {119, "122.5", "= -49 m/s"},
               {139, "176.4", "= -58.8 m/s"}};
  Click(form.ball2Button);
  int tick = 0;
  std::vector<double> tops;
  for (const auto& [lastTick, metres, velocity] : bands) {
    const auto k = static_cast<std::int16_t>(tops.size());
    EXPECT_FALSE(form.resetButton.Enabled);
    Ticks(lastTick - tick);
    tick = lastTick;
    tops.push_back(form.ball2.Top);
    ExpectHand(k + 1);
    EXPECT_EQ(form.vyText.Caption, velocity);
    EXPECT_EQ(form.fallNumbers(k).Caption, metres);
    EXPECT_EQ(form.fallTicks(0).Visible, k > 0)
        << "the mark of the start comes with that of the first second";
    EXPECT_EQ(form.fallTicks(k).Visible, k > 0);
    EXPECT_FALSE(form.fallTicks(static_cast<std::int16_t>(k + 1)).Visible);
  }
  EXPECT_TRUE(form.resetButton.Enabled && form.resetHint.Visible);
  Ticks(5);
  EXPECT_EQ(form.vyText.Caption, "= -58.8 m/s") << "too fast for every band, and not yet near the ground";
  Ticks(1);
  EXPECT_EQ(form.vyText.Caption, "= -68.6 m/s");
  ExpectHand(8);
  EXPECT_FALSE(form.fallTicks(7).Visible || form.fallNumbers(7).Visible);
  for (std::int16_t k = 0; k < 7; ++k) {
    const double top = tops[static_cast<std::size_t>(k)];
    ExpectEnds(form.fallTicks(k), {6300, top + 160, 6360, top + 160});
    ExpectPlace(form.fallNumbers(k), 6420, top + 40);
  }
  ExpectEnds(form.sightLineAcross, {255, 3949.695, 6500, 3949.695});
  EXPECT_TRUE(form.metresText.Visible && form.yArrow.Visible && form.vySymbol.Visible &&
              form.panelBall2.Visible);
  EXPECT_FALSE(form.xArrow.Visible || form.panelBall1.Visible || form.railTicks(0).Visible ||
               form.sightLineDown.Visible);
}

TEST_F(ProjectileTest, BallThreeTakesXFromOneAndYFromTwoAndLeavesATrail) {
  Click(form.ball3Button);
  for (std::size_t tick = 1; tick <= 145; ++tick) {
    Ticks(1);
    ASSERT_EQ(form.ball3.Left, form.ball1.Left);
    ASSERT_EQ(form.ball3.Top, form.ball2.Top);
    ASSERT_TRUE(form.sightLineAcross.X1 == form.ball3.Left + 255 && form.sightLineAcross.X2 == 255)
        << "the sight line joins them";
    ASSERT_EQ(form.dots().size(), tick) << "the last tick leaves one too";
    const Dot& dot = form.dots().back();
    ASSERT_TRUE(dot.x == Single(form.ball3.Left - 20) && dot.y == Single(form.ball3.Top + 60));
    ASSERT_TRUE(dot.width == 2 && dot.colour == QBColor(6));
  }
}

TEST_F(ProjectileTest, StopKnowsOnlyItsOwnLastClick) {
  Click(form.ball1Button);
  Ticks(20);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Go");
  Ticks(100);
  EXPECT_EQ(form.ball1.Left, 1250);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Stop");
  EXPECT_EQ(ToTheEnd().back(), 126);
  Click(form.stopButton);
  Click(form.stopButton);
  Ticks(2);
  EXPECT_EQ(form.ball1.Left, 6012.5) << "after the end a stop and a go give one step more";
  EXPECT_EQ(Beeps(), 1u);

  Click(form.resetButton);
  Click(form.stopButton);
  Click(form.ball2Button);
  Ticks(130);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "it was clicked before the run, which it doesn't hold";
  EXPECT_GT(form.ball2.Top, 3000);
  Click(form.stopButton);
  EXPECT_TRUE(form.ballTimer.Enabled);
  Ticks(10);
  Click(form.stopButton);
  Click(form.resetButton);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "Reset leaves it";
  Click(form.stopButton);
  Ticks(5);
  ExpectPlace(form.ball2, 0, 480);
}

TEST_F(ProjectileTest, ResetMakesTheBenchAsNew) {
  ProjectileForm fresh{scene};
  fresh.Show();
  for (CommandButton* button : buttons) {
    SCOPED_TRACE(button->name());
    Click(*button);
    ToTheEnd();
    Click(form.resetButton);
    ASSERT_EQ(form.objects().size(), fresh.objects().size());
    for (std::size_t i = 0; i < form.objects().size(); ++i) {
      const Object& object = *form.objects()[i];
      EXPECT_EQ(object.IsVisible(), fresh.objects()[i]->IsVisible()) << FullName(object);
      EXPECT_EQ(object.IsEnabled(), fresh.objects()[i]->IsEnabled()) << FullName(object);
    }
    const auto movedBack = Moved(form), start = Moved(fresh);
    for (std::size_t i = 0; i < start.size(); ++i) ExpectPlace(*movedBack[i], start[i]->Left, start[i]->Top);
    const auto laidBack = Laid(form), laidFresh = Laid(fresh);
    for (std::size_t i = 0; i < laidFresh.size(); ++i) ExpectEnds(*laidBack[i], laidFresh[i]->Surface());
    ExpectEnds(form.sightLineAcross, {0, 607.5, 480, 607.5});
    ExpectEnds(form.sightLineDown, {607.5, 375, 607.5, 480});
    EXPECT_TRUE(form.resultantArrow.Y1 == 780 && form.yArrow.Y1 == 780 && form.dots().empty());
  }
}

TEST_F(ProjectileTest, AReopenedWindowStartsFresh) {
  for (const int ticks : {60, 145}) {
    Click(form.ball3Button);
    Ticks(ticks);
    Click(form.stopButton);
    Click(form.cancelButton);
    EXPECT_FALSE(form.loaded());
    form.Show();
    Ticks(5);
    ExpectPlace(form.ball1, 480, 120);
    Click(form.ball1Button);
    EXPECT_EQ(ToTheEnd(), ticksOfRail);
    Click(form.stopButton);
    EXPECT_EQ(form.stopButton.Caption, "Go") << "it forgot the stop of the window before";
    UserCloses(form);
    form.Show();
  }
}

}  // namespace
}  // namespace quintara
