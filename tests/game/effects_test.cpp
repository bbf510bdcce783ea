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
  EXPECT_EQ(form.dragConstant.Caption, "0");
  EXPECT_TRUE(form.fireButton.Enabled) << "the next shell can be fired with the fan still showing";
  Advance(399);
  EXPECT_TRUE(form.levelRayUp.Visible && form.levelRayRight.Visible && form.levelRayLeft.Visible)
      << "the burst starts the wait afresh";
  Advance(1);
  EXPECT_FALSE(form.levelRayUp.Visible || form.levelRayRight.Visible || form.levelRayLeft.Visible);
}

TEST_F(EffectsTest, TheFifthBurstOffersTheBonusShot) {
  const char* const bonus = "Bonus Shot using Advanced Trajectory Simulator";
  const std::string laying = form.advice.Caption;
  for (const bool fifthIsOnFoot : {true, false}) {
    RunningGame other;
    other.Start();
    other.OpenProfile();
    for (int shell = 1; shell <= 4; ++shell) other.FireTo(12000, -1);
    EXPECT_EQ(other.form.advice.Caption.Get(), laying) << "a miss before the fifth changes no text";
    const auto fire = [&](bool onFoot) { onFoot ? other.FireTo(5000, 100) : other.FireTo(12000, -1); };
    fire(fifthIsOnFoot);
    EXPECT_FALSE(other.form.dragButton.Enabled);
    EXPECT_EQ(other.form.header.Caption, bonus);
    EXPECT_EQ(other.form.header.BackColor.Get(), Colour(0x80FFFF));
    EXPECT_EQ(other.form.advice.Caption.Get(),
              " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click    " +
                  std::string(fifthIsOnFoot ? "" : " ") + "the red Fire button.");
    fire(fifthIsOnFoot);
    EXPECT_EQ(other.form.header.Caption, fifthIsOnFoot ? "Terrain Profile and Ballistic Simulator" : bonus);
    EXPECT_EQ(other.form.bestScore.Caption, other.form.score.Caption.Get()) << "nothing more can be won";
  }
}

TEST_F(EffectsTest, DragTurnedOnAmongTheFragmentsIsPreviewedWithTheirVelocity) {
  FireTo(22052, -1);
  Advance(100);
  Click(form.dragButton);
  EXPECT_NEAR(form.flight.time, (270 * 5 - 1) * 0.059, 0.05);
}

TEST_F(EffectsTest, FragmentsFlyInParabolasUntilReset) {
  FireTo(22052, -1);
  const Shape* fragments[] = {&form.fragment1, &form.fragment2, &form.fragment3, &form.fragment4,
                              &form.fragment5};
  const int landing[] = {31, 41, 36, 38, 33};
  const double start = form.flames.Left;
  for (int tick = 1; tick <= 45; ++tick) {
    Advance(100);
    for (int i = 0; i < 5; ++i) {
      ASSERT_EQ(fragments[i]->Top > 9040, tick >= landing[i]) << "fragment " << i + 1 << ", tick " << tick;
      ASSERT_TRUE(fragments[i]->Visible);
    }
    ASSERT_EQ(form.resetButton.Enabled, tick >= 33) << "the fifth fragment alone decides";
  }
  EXPECT_EQ(form.advice.Caption, " Click Reset to continue the game");
  EXPECT_FALSE(form.elevationBar.Enabled || form.velocityBar.Enabled || form.dragButton.Enabled ||
               form.fireButton.Enabled);
  EXPECT_GT(form.fragment2.Left, start + 45 * 5 - 1) << "to the right";
  EXPECT_LT(form.fragment4.Left, start + 300 - 45 * 5 + 1) << "to the left";
  Advance(3600 * 1000);
  EXPECT_TRUE(form.resetButton.Enabled) << "an hour of waiting does no harm";
  Click(form.resetButton);
  EXPECT_FALSE(form.fragmentTimer.Enabled);
}

}  // namespace
}  // namespace quintara
