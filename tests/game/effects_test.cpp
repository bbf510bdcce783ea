#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class EffectsTest : public ::testing::Test, protected RunningGame {
 protected:
  EffectsTest() {
    Start();
    OpenProfile();
    form.HScroll1.Value = 1;
  }
  void MissOnGround() { FireTo(12000, -1); }
  void MissOnFace() { FireTo(5000, 100); }
};

TEST_F(EffectsTest, AMissEndsDragAndItsFanFades) {
  MissOnGround();
  Advance(200);
  Click(form.cmdAdvanced);
  MissOnFace();
  EXPECT_EQ(form.Label23.Caption, "30") << "it costs 15 points with drag";
  EXPECT_EQ(form.cmdAdvanced.Caption, "OFF");
  EXPECT_TRUE(form.cmdAdvanced.Enabled);
  EXPECT_EQ(form.Label15.Caption, "0");
  EXPECT_TRUE(form.Image7.Enabled) << "the next shell can be fired with the fan still showing";
  Advance(399);
  EXPECT_TRUE(form.Line37.Visible && form.Line36.Visible && form.Line38.Visible)
      << "the burst starts the wait afresh";
  Advance(1);
  EXPECT_FALSE(form.Line37.Visible || form.Line36.Visible || form.Line38.Visible);
}

TEST_F(EffectsTest, TheFifthBurstOffersTheBonusShot) {
  const char* const bonus = "Bonus Shot using Advanced Trajectory Simulator";
  const std::string laying = form.Label4.Caption;
  for (const bool fifthIsOnFace : {true, false}) {
    RunningGame other;
    other.Start();
    other.OpenProfile();
    for (int shell = 1; shell <= 4; ++shell) other.FireTo(12000, -1);
    EXPECT_EQ(other.form.Label4.Caption.Get(), laying) << "a miss before the fifth changes no text";
    const auto fire = [&](bool onFace) { onFace ? other.FireTo(5000, 100) : other.FireTo(12000, -1); };
    fire(fifthIsOnFace);
    EXPECT_FALSE(other.form.cmdAdvanced.Enabled);
    EXPECT_EQ(other.form.Label24.Caption, bonus);
    EXPECT_EQ(other.form.Label24.BackColor.Get(), Colour(0x80FFFF));
    EXPECT_EQ(other.form.Label4.Caption.Get(),
              " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click    " +
                  std::string(fifthIsOnFace ? "" : " ") + "the red Fire button.");
    fire(fifthIsOnFace);
    EXPECT_EQ(other.form.Label24.Caption, fifthIsOnFace ? "Terrain Profile and Ballistic Simulator" : bonus);
    EXPECT_EQ(other.form.Label23.Caption, other.form.Label17.Caption.Get()) << "nothing more can be won";
  }
}

TEST_F(EffectsTest, FragmentsFlyInParabolasUntilReset) {
  FireTo(22052, -1);
  const Shape* fragments[] = {&form.shpExplode1, &form.shpExplode2, &form.shpExplode3, &form.shpExplode4,
                              &form.shpExplode5};
  const int landing[] = {31, 41, 36, 38, 33};
  const double start = form.Image8.Left;
  for (int tick = 1; tick <= 45; ++tick) {
    Advance(100);
    for (int i = 0; i < 5; ++i) {
      ASSERT_EQ(fragments[i]->Top > 9040, tick >= landing[i]) << "fragment " << i + 1 << ", tick " << tick;
      ASSERT_TRUE(fragments[i]->Visible);
    }
    ASSERT_EQ(form.cmdReset.Enabled, tick >= 33) << "the fifth fragment alone decides";
  }
  EXPECT_EQ(form.Label4.Caption, " Click Reset to continue the game");
  EXPECT_FALSE(form.VScroll1.Enabled || form.VScroll2.Enabled || form.cmdAdvanced.Enabled ||
               form.Image7.Enabled);
  EXPECT_GT(form.shpExplode2.Left, start + 45 * 5 - 1) << "to the right";
  EXPECT_LT(form.shpExplode4.Left, start + 300 - 45 * 5 + 1) << "to the left";
  Advance(3600 * 1000);
  EXPECT_TRUE(form.cmdReset.Enabled) << "an hour of waiting does no harm";
  Click(form.cmdReset);
  EXPECT_FALSE(form.tmrExplode.Enabled);
}

}  // namespace
}  // namespace quintara
