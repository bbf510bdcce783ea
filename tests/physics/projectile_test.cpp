#include "physics/projectile.h"

#include "tests/physics/demonstration.h"

namespace quintara {
namespace {

// Where everything stands second by second, to the last digit, is in the transcript of the golden flights.
class ProjectileTest : public DemonstrationTest<ProjectileForm> {
 protected:
  void Ticks(int count) { Advance(50 * count); }
  // Ticks to the end of the run that a ball's button has begun; gives how many there were.
  int ToTheEnd() {
    int ticks = 0;
    for (; form.ballTimer.Enabled && ticks < 1000; ++ticks) Ticks(1);
    return ticks;
  }

  std::vector<CommandButton*> buttons{&form.ball1Button, &form.ball2Button, &form.ball3Button};
};

TEST_F(ProjectileTest, EachSecondOfTheRailIsMarkedAndHeard) {
  Click(form.ball1Button);
  for (CommandButton* each : buttons) EXPECT_EQ(UserClicks(*each), InputResult::NoTarget);
  Ticks(124);
  EXPECT_FALSE(form.resetHint.Visible || form.resetButton.Enabled);
  Ticks(21);
  EXPECT_TRUE(form.resetHint.Visible && form.resetButton.Enabled);
  EXPECT_FALSE(form.railTicks(7).Visible) << "between the last two bands";
  EXPECT_EQ(Beeps(), 7u);
  EXPECT_EQ(ToTheEnd(), 1);
  for (std::int16_t k = 0; k < 8; ++k)
    EXPECT_TRUE(form.railTicks(k).Visible && form.railNumbers(k).Visible) << k;
}

TEST_F(ProjectileTest, EachSecondOfTheFallIsMarkedWhereTheBallWas) {
  Click(form.ball2Button);
  Ticks(20);
  EXPECT_FALSE(form.fallTicks(0).Visible) << "the mark of the start comes with that of the first second";
  Ticks(20);
  const double top = form.ball2.Top;
  EXPECT_TRUE(form.fallTicks(0).Visible && form.fallTicks(1).Visible);
  EXPECT_EQ(ToTheEnd(), 105);
  EXPECT_NEAR(form.fallTicks(1).Y1, top + 160, 0.01);
  EXPECT_EQ(form.fallNumbers(1).Caption, "4.9");
  EXPECT_FALSE(form.fallTicks(7).Visible || form.railTicks(0).Visible || form.sightLineDown.Visible);
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
  EXPECT_EQ(ToTheEnd(), 126);
  Click(form.stopButton);
  Click(form.stopButton);
  Ticks(2);
  EXPECT_EQ(form.ball1.Left, 6012.5) << "after the end a stop and a go give one step more";

  Click(form.resetButton);
  Click(form.stopButton);
  Click(form.ball2Button);
  Ticks(130);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "it was clicked before the run, which it doesn't hold";
  EXPECT_GT(form.ball2.Top, 3000);
  Click(form.resetButton);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "Reset leaves it";
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
    ExpectPlace(form.ball1, fresh.ball1.Left, fresh.ball1.Top);
    ExpectPlace(form.ball2, fresh.ball2.Left, fresh.ball2.Top);
    ExpectPlace(form.ball3, fresh.ball3.Left, fresh.ball3.Top);
    ExpectEnds(form.plunger1, fresh.plunger1.Surface());
    ExpectEnds(form.trap, fresh.trap.Surface());
    ExpectEnds(form.dialHand, fresh.dialHand.Surface());
    EXPECT_TRUE(form.dots().empty());
  }
}

TEST_F(ProjectileTest, AReopenedWindowStartsFresh) {
  Click(form.ball3Button);
  Ticks(60);
  Click(form.stopButton);
  Click(form.cancelButton);
  EXPECT_FALSE(form.loaded());
  form.Show();
  Click(form.ball1Button);
  EXPECT_EQ(ToTheEnd(), 146);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "it forgot the stop of the window before";
}

}  // namespace
}  // namespace quintara
