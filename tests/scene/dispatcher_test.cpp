#include "scene/dispatcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

class DispatcherTest : public ::testing::Test, protected TrialScene {
 protected:
  DispatcherTest() {
    form.Early.Enabled = false;
    Note(form.Clock, 'c');
    Note(form.Other, 'o');
  }

  void Note(Timer& timer, char letter) {
    timer.Tick.Bind([this, letter] { ticks.push_back(letter + std::to_string(dispatcher.now())); });
  }
  void Start(Timer& timer, std::int32_t interval) {
    timer.Interval = interval;
    timer.Enabled = true;
  }

  std::vector<std::string> ticks;
};

using Ticks = std::vector<std::string>;

TEST_F(DispatcherTest, TicksInRhythmWhicheverPropertyIsSetFirst) {
  form.Clock.Enabled = true;
  dispatcher.AdvanceTo(1000);
  EXPECT_EQ(ticks, Ticks{}) << "an interval of 0 is silent";
  EXPECT_FALSE(dispatcher.NextDue().has_value());
  form.Clock.Interval = 400;
  EXPECT_EQ(dispatcher.NextDue(), 1400);
  dispatcher.AdvanceTo(1900);
  EXPECT_EQ(ticks, (Ticks{"c1400", "c1800"}));
  form.Clock.Enabled = true;
  dispatcher.AdvanceTo(2500);
  EXPECT_EQ(ticks.back(), "c2200") << "turning on a timer that is on changes nothing";
  form.Clock.Interval = 400;
  dispatcher.AdvanceTo(3000);
  EXPECT_EQ(ticks.back(), "c2900") << "writing the interval starts the wait afresh, the same number too";
  form.Clock.Enabled = false;
  form.Clock.Enabled = true;
  dispatcher.AdvanceTo(3400);
  EXPECT_EQ(ticks.back(), "c3400") << "so does turning it off and on";
}

TEST_F(DispatcherTest, OrdersTicksOfTheSameMoment) {
  Start(form.Clock, 1000);
  Start(form.Other, 100);
  dispatcher.AdvanceTo(1000);
  ASSERT_EQ(ticks.size(), 11u);
  EXPECT_EQ(ticks[9], "o1000") << "ten ticks of 100 ms belong to the second before the one that ends it";
  EXPECT_EQ(ticks[10], "c1000");

  ticks.clear();
  form.Other.Interval = 50;
  form.Clock.Interval = 50;
  dispatcher.AdvanceTo(1100);
  EXPECT_EQ(ticks, (Ticks{"o1050", "c1050", "o1100", "c1100"}))
      << "equal intervals: the wait that began first";
}

TEST_F(DispatcherTest, ALongHandlerLosesAllTicksButOne) {
  Start(form.Clock, 17);
  form.Clock.Tick.Bind([&] {
    ticks.push_back(std::to_string(dispatcher.now()));
    if (ticks.size() == 1) dispatcher.PassTime(2000);
    if (ticks.size() == 5) form.Clock.Enabled = false;
    if (ticks.size() == 5) dispatcher.PassTime(100);
  });
  dispatcher.AdvanceTo(4000);
  EXPECT_EQ(ticks, (Ticks{"17", "2017", "2023", "2040", "2057"})) << "one at once, then the usual rhythm";
  EXPECT_FALSE(dispatcher.NextDue().has_value()) << "a handler may stop its own timer for good";
}

TEST_F(DispatcherTest, UnloadingDropsTimersAndWaitingInput) {
  Note(other.Clock, 'x');
  Note(other.Early, 'e');
  dispatcher.AdvanceTo(700);
  other.Show();
  dispatcher.AdvanceTo(1700);
  EXPECT_EQ(ticks, Ticks{"e1700"}) << "a timer that starts enabled waits from the loading";
  Start(other.Clock, 10);
  bool dropped = true;
  dispatcher.Run(form, [&] {
    dispatcher.Run(other, [&] { dropped = false; });
    other.Unload();
  });
  dispatcher.AdvanceTo(5000);
  EXPECT_TRUE(dropped);
  other.Show();
  dispatcher.AdvanceTo(5999);
  EXPECT_EQ(ticks.size(), 1u) << "the other timer is off again, as in its form's table";
}

TEST_F(DispatcherTest, NothingRunsAfterTheEnd) {
  Start(form.Clock, 10);
  bool finished = false;
  dispatcher.Run(form, [&] {
    scene.End();
    scene.End();
    finished = true;
  });
  EXPECT_TRUE(finished) << "the handler that ends the program runs to its end";
  EXPECT_FALSE(dispatcher.NextDue().has_value());
  dispatcher.AdvanceTo(100);
  dispatcher.Run(form, [&] { ticks.push_back("ran"); });
  EXPECT_TRUE(ticks.empty());
  EXPECT_EQ(platform.log, std::vector<std::string>{"end"}) << "no QueryUnload";
}

}  // namespace
}  // namespace quintara
