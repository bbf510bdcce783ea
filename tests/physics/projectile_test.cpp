#include "physics/projectile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "scene/input.h"
#include "scene/scene.h"
#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

// Another window of the program, which goes on when the bench is closed.
struct Desk : Form {
  explicit Desk(Scene& owner) : Form(owner, "desk", {}) { Show(); }
};

class ProjectileTest : public ::testing::Test {
 protected:
  struct Run {
    std::vector<int> beeps;  // ticks
    int lastTick = 0;
  };

  ProjectileTest() { form.Show(); }

  void Click(Object& object) { ASSERT_EQ(UserClicks(object), InputResult::Done) << FullName(object); }
  void Ticks(int count) { scene.dispatcher().AdvanceTo(scene.dispatcher().now() + 50 * count); }
  bool TickBeeps() {
    platform.log.clear();
    Ticks(1);
    return platform.log == std::vector<std::string>{"beep"};
  }
  // Ticks to the end of the run that a ball's button has begun.
  Run ToTheEnd() {
    Run run;
    while (form.tmrStart.Enabled && run.lastTick < 1000) {
      ++run.lastTick;
      if (TickBeeps()) run.beeps.push_back(run.lastTick);
    }
    return run;
  }
  void StartAndTick(CommandButton& ball, int count) {
    Click(ball);
    Ticks(count);
  }
  void ExpectPlace(const Box& box, double left, double top) {
    EXPECT_NEAR(box.Left, left, 0.01) << FullName(box);
    EXPECT_NEAR(box.Top, top, 0.01) << FullName(box);
  }
  void ExpectEnds(const Line& line, const Segment& ends) {
    EXPECT_NEAR(line.X1, ends.x1, 0.01) << FullName(line);
    EXPECT_NEAR(line.Y1, ends.y1, 0.01) << FullName(line);
    EXPECT_NEAR(line.X2, ends.x2, 0.01) << FullName(line);
    EXPECT_NEAR(line.Y2, ends.y2, 0.01) << FullName(line);
  }

  RecordingPlatform platform;
  Scene scene{platform};
  Desk desk{scene};
  ProjectileForm form{scene};
  std::vector<CommandButton*> balls{&form.cmdBall1, &form.cmdBall2, &form.cmdBall3};
};

const std::vector<int> beepsOfRail = {9, 29, 48, 67, 87, 106, 125, 146};
const std::vector<int> beepsOfFall = {9, 29, 48, 67, 87, 106, 125, 142};

TEST_F(ProjectileTest, BeepsAndEndsOfTheThreeRuns) {
  const struct {
    CommandButton& ball;
    std::vector<int> beeps;
    int lastTick;
    double across, down;  // where balls 1 and 2 end
  } cases[] = {{form.cmdBall1, beepsOfRail, 146, 5975, 480},
               {form.cmdBall2, beepsOfFall, 145, 480, 3822.195},
               {form.cmdBall3, beepsOfFall, 145, 5918.75, 3822.195}};
  for (const auto& [ball, beeps, lastTick, across, down] : cases) {
    Click(ball);
    for (CommandButton* button : balls) EXPECT_EQ(UserClicks(*button), InputResult::NoTarget);
    const Run run = ToTheEnd();
    EXPECT_EQ(run.beeps, beeps) << ball.name();
    EXPECT_EQ(run.lastTick, lastTick) << ball.name();
    ExpectPlace(form.Shape1, across, &ball == &form.cmdBall2 ? 120 : 105);
    ExpectPlace(form.Label1, across + 60, form.Shape1.Top + 40);
    ExpectPlace(form.Shape2, 0, down);
    ExpectPlace(form.Label2, 60, down + 40);
    for (CommandButton* button : balls) EXPECT_FALSE(button->Enabled) << "only Reset leads on";
    Click(form.cmdReset);
  }
}

TEST_F(ProjectileTest, LoadLaysTheDial) {
  EXPECT_TRUE(form.Picture1.Visible && form.Line8.Visible);
  EXPECT_FALSE(form.Label6(8).Visible);
  ExpectPlace(form.Label6(0), 420, 40);
  for (std::int16_t i = 0; i <= 7; ++i) {
    EXPECT_TRUE(form.Label6(i).Visible);
    EXPECT_EQ(form.Label6(i).Caption, std::to_string(i));
    if (i == 0) continue;
    const double angle = i * 3.14159265 / 4;
    ExpectPlace(form.Label6(i), 417.5 + 400 * std::sin(angle), 417.5 - 400 * std::cos(angle));
  }
  EXPECT_TRUE(form.Left == 5000.0 && form.Top == 4000.0);
  EXPECT_EQ(form.tmrStart.Interval, 0);
}

TEST_F(ProjectileTest, TheHandGoesWithTheBands) {
  const Segment atRest = {500, 500, 500, 230};
  const struct {
    CommandButton& ball;
    int tick, position;
  } cases[] = {{form.cmdBall1, 9, 1},   {form.cmdBall1, 28, 1},  {form.cmdBall1, 29, 2},
               {form.cmdBall1, 145, 7}, {form.cmdBall1, 146, 8}, {form.cmdBall2, 1, 1},
               {form.cmdBall2, 20, 1},  {form.cmdBall2, 21, 2},  {form.cmdBall2, 79, 4},
               {form.cmdBall2, 80, 5},  {form.cmdBall2, 119, 6}, {form.cmdBall2, 144, 7},
               {form.cmdBall2, 145, 8}, {form.cmdBall3, 1, 1},   {form.cmdBall3, 145, 8}};
  for (const auto& [ball, tick, position] : cases) {
    StartAndTick(ball, tick);
    const double angle = position * 3.14159265 / 4;
    ExpectEnds(form.Line8, {500, 500, 500 + 280 * std::sin(angle), 500 - 280 * std::cos(angle)});
    form.cmdReset.Enabled = true;
    Click(form.cmdReset);
    EXPECT_FALSE(form.tmrStart.Enabled);
    ExpectEnds(form.Line8, atRest);
  }
  StartAndTick(form.cmdBall1, 8);
  ExpectEnds(form.Line8, atRest);
}

TEST_F(ProjectileTest, TheRailIsMarkedAsTheBallGoesBy) {
  StartAndTick(form.cmdBall1, 8);
  EXPECT_FALSE(form.Line7(0).Visible || form.Label8(0).Visible);
  Ticks(116);
  EXPECT_FALSE(form.Label7.Visible || form.cmdReset.Enabled);
  Ticks(1);
  EXPECT_TRUE(form.Label7.Visible && form.cmdReset.Enabled);
  Ticks(20);
  EXPECT_EQ(form.Shape1.Left, 5937.5);
  EXPECT_FALSE(form.Line7(7).Visible) << "between the last two bands";
  Ticks(1);
  const char* captions[] = {"70", "140", "210", "280", "350", "420", "490", "560"};
  for (std::int16_t k = 0; k < 8; ++k) {
    EXPECT_TRUE(form.Line7(k).Visible && form.Label8(k).Visible) << k;
    ExpectEnds(form.Line7(k), {1025.0 + 725 * k, 480, 1025.0 + 725 * k, 540});
    ExpectPlace(form.Label8(k), 905 + 725 * k, 600);
    EXPECT_EQ(form.Label8(k).Caption, captions[k]);
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
  EXPECT_EQ(form.Label4(7).Caption, "");
  EXPECT_FALSE(form.Line9(7).Visible || form.Label4(7).Visible);
  for (std::int16_t k = 0; k < 7; ++k) {
    EXPECT_TRUE(form.Line9(k).Visible && form.Label4(k).Visible);
    const double top = tops[static_cast<std::size_t>(k)];
    ExpectEnds(form.Line9(k), {6300, top + 160, 6360, top + 160});
    ExpectPlace(form.Label4(k), 6420, top + 40);
  }
}

TEST_F(ProjectileTest, TheBenchFollowsTheFall) {
  StartAndTick(form.cmdBall2, 145);
  ExpectEnds(form.Line1, {255, 3949.695, 6500, 3949.695});
  ExpectEnds(form.Line4, {300, 960, 300, 720});
  ExpectEnds(form.Line6, {360, 240, 440, 240});
  const double down = 780 + 3342.195 * 0.26;
  ExpectEnds(form.Line12, {500, down, 500, 780});
  ExpectPlace(form.Label14, 210, down + 90);
  ExpectPlace(form.Image3, 0, down + 90);
  ExpectPlace(form.Shape11, 370, 650);
  ExpectPlace(form.Label16, 440, 690);
  EXPECT_TRUE(form.Label9.Visible && form.Line12.Visible && form.Image3.Visible && form.Shape11.Visible);
  EXPECT_FALSE(form.Line10.Visible || form.Shape10.Visible || form.Line7(0).Visible || form.Line2.Visible);
}

TEST_F(ProjectileTest, BallThreeTakesXFromOneAndYFromTwoAndLeavesATrail) {
  Click(form.cmdBall3);
  for (std::size_t tick = 1; tick <= 145; ++tick) {
    Ticks(1);
    ASSERT_EQ(form.Shape3.Left, form.Shape1.Left);
    ASSERT_EQ(form.Shape3.Top, form.Shape2.Top);
    ASSERT_EQ(form.dots().size(), tick) << "the last tick leaves one too";
    const Dot& dot = form.dots().back();
    ASSERT_TRUE(dot.x == Single(form.Shape3.Left - 20) && dot.y == Single(form.Shape3.Top + 60));
    ASSERT_TRUE(dot.width == 2 && dot.colour == QBColor(6));
  }
  ExpectPlace(form.Label3, form.Label1.Left, form.Label2.Top);
  ExpectEnds(form.Line1, {6173.75, 3949.695, 255, 3949.695});
  ExpectEnds(form.Line5, {420, 600, 560, 600});
  ExpectEnds(form.Line6, {420, 240, 560, 240});
  ExpectEnds(form.Line2, {6046.25, 360, 6046.25, 3822.195});
  EXPECT_TRUE(form.Line2.Visible);
  EXPECT_FALSE(form.Label9.Visible);
  for (std::int16_t k = 0; k < 8; ++k)
    EXPECT_FALSE(form.Line7(k).Visible || form.Label8(k).Visible || form.Line9(k).Visible ||
                 form.Label4(k).Visible);
  EXPECT_EQ(form.Label4(6).Caption, "176.4") << "the numbers are kept all the same";
}

TEST_F(ProjectileTest, TheArrowsOfBallThree) {
  StartAndTick(form.cmdBall3, 100);
  const double down = 780 + (form.Shape3.Top - 480) * 0.26;
  ExpectEnds(form.Line11, {1360, down, 500, 780});
  // The head of the resultant stands square on its end, the tip 60 twips on.
  const double length = std::hypot(860, down - 780);
  const double right = 60 * 860 / length, below = 60 * (down - 780) / length;
  ExpectEnds(form.Line17, {1360 + right, down + below, 1360 + below, down - right});
  ExpectEnds(form.Line18, {1360 + right, down + below, 1360 - below, down + right});

  ExpectEnds(form.Line12, {500, down, 500, 780});
  ExpectEnds(form.Line19, {500, down + 60, 560, down});
  ExpectEnds(form.Line20, {500, down + 60, 440, down});
  ExpectEnds(form.Line15, {1420, 780, 1360, 720});
  ExpectEnds(form.Line16, {1420, 780, 1360, 840});
  ExpectEnds(form.Line21, {1420, 780, 1420, down + below});
  ExpectEnds(form.Line22, {500, down + below, 1360, down + below});
  for (const Line* line : {&form.Line11, &form.Line17, &form.Line18, &form.Line21, &form.Line22})
    EXPECT_TRUE(line->Visible) << FullName(*line);
  ExpectPlace(form.Shape12, 370, 650);
  ExpectPlace(form.Label17, 440, 690);
}

TEST_F(ProjectileTest, StopHoldsARunAndLetsItGoOn) {
  StartAndTick(form.cmdBall1, 20);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  Ticks(100);
  EXPECT_EQ(form.Shape1.Left, 1250);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  EXPECT_EQ(ToTheEnd().lastTick, 126);

  // After the end a stop and a go give one step more.
  Click(form.cmdStop);
  Click(form.cmdStop);
  EXPECT_TRUE(TickBeeps());
  EXPECT_EQ(form.Shape1.Left, 6012.5);
  EXPECT_FALSE(form.tmrStart.Enabled);
}

TEST_F(ProjectileTest, StopKnowsOnlyItsOwnLastClick) {
  Click(form.cmdStop);
  StartAndTick(form.cmdBall2, 130);
  EXPECT_EQ(form.cmdStop.Caption, "Go") << "it was clicked before the run";
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  EXPECT_TRUE(form.tmrStart.Enabled);
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
    Click(*ball);
    ToTheEnd();
    Click(form.cmdReset);
    ASSERT_EQ(form.objects().size(), fresh.objects().size());
    for (std::size_t i = 0; i < form.objects().size(); ++i) {
      const Object& object = *form.objects()[i];
      EXPECT_EQ(object.IsVisible(), fresh.objects()[i]->IsVisible()) << ball->name() << FullName(object);
      EXPECT_EQ(object.IsEnabled(), fresh.objects()[i]->IsEnabled()) << ball->name() << FullName(object);
    }
    for (const Box* box : std::initializer_list<const Box*>{&form.Shape1, &form.Label1, &form.Shape2,
                                                            &form.Label2, &form.Shape3, &form.Label3}) {
      const auto* start = static_cast<const Box*>(fresh.Find(box->name()));
      ExpectPlace(*box, start->Left, start->Top);
    }
    for (const Line* line : {&form.Line4, &form.Line5, &form.Line6, &form.Line8}) {
      ExpectEnds(*line, static_cast<const Line*>(fresh.Find(line->name()))->Surface());
    }
    ExpectEnds(form.Line1, {0, 607.5, 480, 607.5});
    ExpectEnds(form.Line2, {607.5, 375, 607.5, 480});
    EXPECT_TRUE(form.Line11.Y1 == 780 && form.Line12.Y1 == 780);
    EXPECT_TRUE(form.dots().empty());
  }
}

TEST_F(ProjectileTest, AReopenedWindowStartsFresh) {
  for (const int ticks : {60, 145}) {
    StartAndTick(form.cmdBall3, ticks);
    Click(form.cmdStop);
    Click(form.cmdCancel);
    EXPECT_FALSE(form.loaded());
    form.Show();
    Ticks(5);
    ExpectPlace(form.Shape1, 480, 120);
    EXPECT_TRUE(form.dots().empty());
    Click(form.cmdBall1);
    const Run run = ToTheEnd();
    EXPECT_EQ(run.beeps, beepsOfRail);
    EXPECT_EQ(run.lastTick, 146);
    Click(form.cmdStop);
    EXPECT_EQ(form.cmdStop.Caption, "Go") << "it forgot the stop of the window before";
    UserCloses(form);
    form.Show();
  }
}

// In the vector panel all three end up in one place.
TEST_F(ProjectileTest, DigitsStandBeforeTheirBallsAndBallThreeBeforeTheOthers) {
  const auto depth = [](const Object& object) {
    const auto& children = object.container()->children();
    return std::find(children.begin(), children.end(), &object) - children.begin();
  };
  EXPECT_LT(depth(form.Label1), depth(form.Shape1));
  EXPECT_LT(depth(form.Label2), depth(form.Shape2));
  EXPECT_LT(depth(form.Label3), depth(form.Shape3));
  const Object* panel[] = {&form.Label17, &form.Shape12, &form.Label16,
                           &form.Shape11, &form.Label15, &form.Shape10};
  EXPECT_TRUE(std::is_sorted(std::begin(panel), std::end(panel),
                             [&](const Object* a, const Object* b) { return depth(*a) < depth(*b); }));
}

}  // namespace
}  // namespace quintara
