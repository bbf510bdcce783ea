#include "front/pacing.h"

#include <gtest/gtest.h>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

class PacingTest : public testing::Test, public TrialScene {
 protected:
  PacingTest() {
    form.Early.Enabled = false;
    form.Clock.Interval = 20;
    form.Clock.Enabled = true;
    form.Clock.Tick.Bind([this] { ++ticks; });
  }

  Pacing pacing{scene};
  int ticks = 0;
};

TEST_F(PacingTest, TicksFollowRealTimeAndThoseThatAreLostAreNotMadeUp) {
  EXPECT_EQ(pacing.Rest(5), 15);
  pacing.Tick(19);
  EXPECT_EQ(ticks, 0);
  pacing.Tick(20);
  EXPECT_EQ(ticks, 1);
  pacing.CatchUp(1013);
  EXPECT_EQ(ticks, 1) << "input comes first";
  EXPECT_EQ(pacing.Rest(1013), 0);
  pacing.Tick(1013);
  EXPECT_EQ(ticks, 2) << "the machine was held up";
  EXPECT_EQ(pacing.Rest(1013), 7) << "in its rhythm";
  form.Clock.Interval = 3'600'000;
  EXPECT_EQ(pacing.Rest(1013), 60'000);
  form.Clock.Enabled = false;
  EXPECT_EQ(pacing.Rest(1013), std::nullopt);
}

TEST_F(PacingTest, NothingTicksBehindAQuestionAndEachFaultIsToldOnce) {
  platform.repliesLater = true;
  pacing.TellFault("one");
  EXPECT_EQ(pacing.Rest(0), std::nullopt);
  pacing.Tick(100);
  EXPECT_EQ(ticks, 0);
  pacing.TellFault("one");
  platform.Reply();
  EXPECT_TRUE(platform.replies.empty());
  pacing.TellFault("two");
  EXPECT_EQ(platform.replies.size(), 1u);
}

}  // namespace
}  // namespace quintara
