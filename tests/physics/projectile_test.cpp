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
    while (form.tmrStart.Enabled && tick < 1000) {
      ++tick;
      Ticks(1);
      if (Beeps() > 0) ticks.push_back(tick);
    }
    ticks.push_back(tick);
    return ticks;
  }
  void ExpectHand(int position) {
    const double angle = position * 3.14159265 / 4, length = position == 0 ? 270 : 280;
    ExpectEnds(form.Line8, {500, 500, 500 + length * std::sin(angle), 500 - length * std::cos(angle)});
  }

  std::vector<CommandButton*> balls{&form.cmdBall1, &form.cmdBall2, &form.cmdBall3};
};

const std::vector<int> ticksOfRail = {9, 29, 48, 67, 87, 106, 125, 146, 146};
const std::vector<int> ticksOfFall = {9, 29, 48, 67, 87, 106, 125, 142, 145};

TEST_F(ProjectileTest, BeepsAndEndsOfTheThreeRuns) {
  const struct {
    CommandButton& ball;
    std::vector<int> ticks;
    double across, down;  // where balls 1 and 2 end
  } cases[] = {{form.cmdBall1, ticksOfRail, 5975, 480},
               {form.cmdBall2, ticksOfFall, 480, 3822.195},
               {form.cmdBall3, ticksOfFall, 5918.75, 3822.195}};
  for (const auto& [ball, ticks, across, down] : cases) {
    Click(ball);
    for (CommandButton* button : balls) EXPECT_EQ(UserClicks(*button), InputResult::NoTarget);
    EXPECT_EQ(ToTheEnd(), ticks) << ball.name();
    ExpectPlace(form.Shape1, across, &ball == &form.cmdBall2 ? 120 : 105);
    ExpectPlace(form.Shape2, 0, down);
    for (CommandButton* button : balls) EXPECT_FALSE(button->Enabled) << "only Reset leads on";
    Click(form.cmdReset);
  }
}

TEST_F(ProjectileTest, TheRailAndTheDialGoWithTheBall) {
  Click(form.cmdBall1);
  Ticks(8);
  ExpectHand(0);
  EXPECT_FALSE(form.Line7(0).Visible || form.Label8(0).Visible);
  Ticks(1);
  ExpectHand(1);
  Ticks(115);
  EXPECT_FALSE(form.Label7.Visible || form.cmdReset.Enabled);
  Ticks(1);
  EXPECT_TRUE(form.Label7.Visible && form.cmdReset.Enabled);
  Ticks(20);
  ExpectHand(7);
  EXPECT_FALSE(form.Line7(7).Visible) << "between the last two bands";
  Ticks(1);
  ExpectHand(8);
  for (std::int16_t k = 0; k < 8; ++k) {
    EXPECT_TRUE(form.Line7(k).Visible && form.Label8(k).Visible) << k;
    EXPECT_EQ(form.Label8(k).Caption, std::to_string(70 * (k + 1)));
  }
  EXPECT_TRUE(form.Label9.Visible && form.Line10.Visible && form.Label12.Visible && form.Shape10.Visible);
  EXPECT_FALSE(form.Line12.Visible || form.Shape11.Visible || form.Label4(0).Visible || form.Line11.Visible);
}

TEST_F(ProjectileTest, TheFallIsMarkedWhereEachBandEnds) {
  const struct {
    int lastTick;
    const char *metres, *velocity;
  } bands[] = {{20, "0", "= 0 m/s"},         {40, "4.9", "= -9.8 m/s"},   {60, "19.6", "= -19.6 m/s"},
               {79, "44.1", "= -29.4 m/s"},  {99, "78.4", "= -39.2 m/s"}, {119, "122.5", "= -49 m/s"},
               {139, "176.4", "= -58.8 m/s"}};
  Click(form.cmdBall2);
  int tick = 0;
  std::vector<double> tops;
  for (const auto& [lastTick, metres, velocity] : bands) {
    const auto k = static_cast<std::int16_t>(tops.size());
    EXPECT_FALSE(form.cmdReset.Enabled);
    Ticks(lastTick - tick);
    tick = lastTick;
    tops.push_back(form.Shape2.Top);
    ExpectHand(k + 1);
    EXPECT_EQ(form.Label14.Caption, velocity);
    EXPECT_EQ(form.Label4(k).Caption, metres);
    EXPECT_EQ(form.Line9(0).Visible, k > 0) << "the mark of the start comes with that of the first second";
    EXPECT_EQ(form.Line9(k).Visible, k > 0);
    EXPECT_FALSE(form.Line9(static_cast<std::int16_t>(k + 1)).Visible);
  }
  EXPECT_TRUE(form.cmdReset.Enabled && form.Label7.Visible);
  Ticks(5);
  EXPECT_EQ(form.Label14.Caption, "= -58.8 m/s") << "too fast for every band, and not yet near the ground";
  Ticks(1);
  EXPECT_EQ(form.Label14.Caption, "= -68.6 m/s");
  ExpectHand(8);
  EXPECT_FALSE(form.Line9(7).Visible || form.Label4(7).Visible);
  for (std::int16_t k = 0; k < 7; ++k) {
    const double top = tops[static_cast<std::size_t>(k)];
    ExpectEnds(form.Line9(k), {6300, top + 160, 6360, top + 160});
    ExpectPlace(form.Label4(k), 6420, top + 40);
  }
  ExpectEnds(form.Line1, {255, 3949.695, 6500, 3949.695});
  EXPECT_TRUE(form.Label9.Visible && form.Line12.Visible && form.Image3.Visible && form.Shape11.Visible);
  EXPECT_FALSE(form.Line10.Visible || form.Shape10.Visible || form.Line7(0).Visible || form.Line2.Visible);
}

TEST_F(ProjectileTest, BallThreeTakesXFromOneAndYFromTwoAndLeavesATrail) {
  Click(form.cmdBall3);
  for (std::size_t tick = 1; tick <= 145; ++tick) {
    Ticks(1);
    ASSERT_EQ(form.Shape3.Left, form.Shape1.Left);
    ASSERT_EQ(form.Shape3.Top, form.Shape2.Top);
    ASSERT_TRUE(form.Line1.X1 == form.Shape3.Left + 255 && form.Line1.X2 == 255)
        << "the sight line joins them";
    ASSERT_EQ(form.dots().size(), tick) << "the last tick leaves one too";
    const Dot& dot = form.dots().back();
    ASSERT_TRUE(dot.x == Single(form.Shape3.Left - 20) && dot.y == Single(form.Shape3.Top + 60));
    ASSERT_TRUE(dot.width == 2 && dot.colour == QBColor(6));
  }
}

TEST_F(ProjectileTest, StopKnowsOnlyItsOwnLastClick) {
  Click(form.cmdBall1);
  Ticks(20);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  Ticks(100);
  EXPECT_EQ(form.Shape1.Left, 1250);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  EXPECT_EQ(ToTheEnd().back(), 126);
  Click(form.cmdStop);
  Click(form.cmdStop);
  Ticks(2);
  EXPECT_EQ(form.Shape1.Left, 6012.5) << "after the end a stop and a go give one step more";
  EXPECT_EQ(Beeps(), 1u);

  Click(form.cmdReset);
  Click(form.cmdStop);
  Click(form.cmdBall2);
  Ticks(130);
  EXPECT_EQ(form.cmdStop.Caption, "Go") << "it was clicked before the run, which it doesn't hold";
  EXPECT_GT(form.Shape2.Top, 3000);
  Click(form.cmdStop);
  EXPECT_TRUE(form.tmrStart.Enabled);
  Ticks(10);
  Click(form.cmdStop);
  Click(form.cmdReset);
  EXPECT_EQ(form.cmdStop.Caption, "Go") << "Reset leaves it";
  Click(form.cmdStop);
  Ticks(5);
  ExpectPlace(form.Shape2, 0, 480);
}

TEST_F(ProjectileTest, ResetMakesTheBenchAsNew) {
  ProjectileForm fresh{scene};
  fresh.Show();
  for (CommandButton* ball : balls) {
    SCOPED_TRACE(ball->name());
    Click(*ball);
    ToTheEnd();
    Click(form.cmdReset);
    ASSERT_EQ(form.objects().size(), fresh.objects().size());
    for (std::size_t i = 0; i < form.objects().size(); ++i) {
      const Object& object = *form.objects()[i];
      EXPECT_EQ(object.IsVisible(), fresh.objects()[i]->IsVisible()) << FullName(object);
      EXPECT_EQ(object.IsEnabled(), fresh.objects()[i]->IsEnabled()) << FullName(object);
    }
    for (const char* name : {"Shape1", "Label1", "Shape2", "Label2", "Shape3", "Label3"}) {
      const auto& start = static_cast<const Box&>(*fresh.Find(name));
      ExpectPlace(static_cast<const Box&>(*form.Find(name)), start.Left, start.Top);
    }
    for (const char* name : {"Line4", "Line5", "Line6", "Line8"})
      ExpectEnds(static_cast<const Line&>(*form.Find(name)),
                 static_cast<const Line&>(*fresh.Find(name)).Surface());
    ExpectEnds(form.Line1, {0, 607.5, 480, 607.5});
    ExpectEnds(form.Line2, {607.5, 375, 607.5, 480});
    EXPECT_TRUE(form.Line11.Y1 == 780 && form.Line12.Y1 == 780 && form.dots().empty());
  }
}

TEST_F(ProjectileTest, AReopenedWindowStartsFresh) {
  for (const int ticks : {60, 145}) {
    Click(form.cmdBall3);
    Ticks(ticks);
    Click(form.cmdStop);
    Click(form.cmdCancel);
    EXPECT_FALSE(form.loaded());
    form.Show();
    Ticks(5);
    ExpectPlace(form.Shape1, 480, 120);
    Click(form.cmdBall1);
    EXPECT_EQ(ToTheEnd(), ticksOfRail);
    Click(form.cmdStop);
    EXPECT_EQ(form.cmdStop.Caption, "Go") << "it forgot the stop of the window before";
    UserCloses(form);
    form.Show();
  }
}

}  // namespace
}  // namespace quintara
