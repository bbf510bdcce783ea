#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class EffectsTest : public ::testing::Test, protected RunningGame {
 protected:
  EffectsTest() {
    Start();
    OpenProfile();
    form.flightTimeBar.Value = 1;
  }
  void MissOnGround() { FireTo(12000, -1); }
  void MissOnFoot() { FireTo(5000, 100); }
};

TEST_F(EffectsTest, AMissEndsDragAndItsFanFades) {
  MissOnGround();
  Advance(200);
  Click(form.dragButton);
  MissOnFoot();
  EXPECT_EQ(form.bestScore.Caption, "30") << "it costs 15 points with drag";
  EXPECT_EQ(form.dragButton.Caption, "OFF");
  EXPECT_TRUE(form.dragButton.Enabled);
  Advance(399);
  EXPECT_TRUE(form.levelRayUp.Visible && form.levelRayRight.Visible && form.levelRayLeft.Visible)
      << "the burst starts the wait afresh";
  Advance(1);
  EXPECT_FALSE(form.levelRayUp.Visible || form.levelRayRight.Visible || form.levelRayLeft.Visible);
}

TEST_F(EffectsTest, TheFifthBurstOffersTheBonusShot) {
  const char* const bonus = "Bonus Shot using Advanced Trajectory Simulator";
  for (const bool fifthIsOnFoot : {true, false}) {
    RunningGame other;
    other.Start();
    other.OpenProfile();
    for (int shell = 1; shell <= 4; ++shell) other.FireTo(12000, -1);
    const auto fire = [&](bool onFoot) { onFoot ? other.FireTo(5000, 100) : other.FireTo(12000, -1); };
    fire(fifthIsOnFoot);
    EXPECT_FALSE(other.form.dragButton.Enabled);
    EXPECT_EQ(other.form.header.Caption, bonus);
    fire(fifthIsOnFoot);
    EXPECT_EQ(other.form.header.Caption, fifthIsOnFoot ? "Terrain Profile and Ballistic Simulator" : bonus);
    EXPECT_EQ(other.form.bestScore.Caption, other.form.score.Caption.Get()) << "nothing more can be won";
  }
}

TEST_F(EffectsTest, FragmentsFlyInParabolasUntilReset) {
  FireTo(22052, -1);
  Advance(3200);
  EXPECT_FALSE(form.resetButton.Enabled);
  Advance(100);
  EXPECT_TRUE(form.resetButton.Enabled && form.fragment5.Top > 9040);
  EXPECT_FALSE(form.fragment2.Top > 9040) << "the fifth fragment alone decides";
  EXPECT_EQ(form.advice.Caption, " Click Reset to continue the game");
  EXPECT_FALSE(form.elevationBar.Enabled || form.velocityBar.Enabled || form.fireButton.Enabled);
  Advance(3600 * 1000);
  EXPECT_TRUE(form.resetButton.Enabled) << "an hour of waiting does no harm";
  Click(form.resetButton);
  EXPECT_FALSE(form.fragmentTimer.Enabled);
}

}  // namespace
}  // namespace quintara
