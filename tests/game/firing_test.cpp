#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class FiringTest : public ::testing::Test, protected RunningGame {
 protected:
  FiringTest() {
    Start();
    form.profile.Visible = true;
    form.firingPanel.Visible = true;
  }
  void Lay(const char* elevation, const char* velocity) {
    form.elevation.Caption = elevation;
    form.velocity.Caption = velocity;
  }
};

TEST_F(FiringTest, TheFirstTickOfAShellAndTheFlash) {
  Lay("80", "700");  // a burst would make the flash stay longer
  Click(form.fireButton);
  EXPECT_EQ(platform.log, std::vector<std::string>{"sound biggun.wav"});
  EXPECT_EQ(form.shellInGun.Caption, "2");
  EXPECT_EQ(form.shotsFired.Caption, "1");
  EXPECT_FALSE(form.shellMarks(4).Visible);
  Advance(16);
  EXPECT_FALSE(form.shells(0).Visible);
  Advance(1);
  EXPECT_EQ(form.flight.dt, Single(0.885));
  EXPECT_EQ(form.shells(0).Top, Single(9250 - form.flight.y * 0.55));
  EXPECT_EQ(form.shells(1).Left, Single(form.flight.x * 0.438 - 790));
  EXPECT_TRUE(form.shells(0).Visible && form.shells(1).Visible && form.rangeBar.Visible &&
              form.heightBar.Visible);
  EXPECT_EQ(form.rangeBar.X1, Single(form.shells(0).Left + 380));
  EXPECT_EQ(form.heightBar.Y2, form.shells(0).Top);
  Advance(382);
  EXPECT_TRUE(form.muzzleFlash.Visible);
  Advance(1);
  EXPECT_FALSE(form.muzzleFlash.Visible) << "it goes after 400 ms";
}

TEST_F(FiringTest, TheFlightTimeSettingCountsFromTheNextStep) {
  Lay("60", "700");
  Click(form.fireButton);
  Advance(17);
  const double before = form.flight.time;
  form.flightTimeBar.Value = 1;
  Advance(17);
  EXPECT_EQ(form.flight.time, Single(before + Single(0.059)));
}

TEST_F(FiringTest, TheHeightBarStaysAtTheSummit) {
  Lay("80", "300");
  Click(form.fireButton);
  double highest = 0;
  for (int i = 0; i < 50; ++i) {
    Advance(17);
    highest = std::max(highest, static_cast<double>(form.flight.y));
  }
  EXPECT_LT(form.flight.vy, 0);
  EXPECT_NEAR(form.heightBar.Y2, 9250 - highest * 0.55, 40) << "it stops one step short of the turn at most";
}

TEST_F(FiringTest, ASecondClickInFlightStartsTheNextShellFromTheGun) {
  Lay("60", "700");
  Click(form.fireButton);
  Advance(170);
  Click(form.fireButton);
  EXPECT_EQ(form.flight.x, 0);
  EXPECT_EQ(form.flight.time, 0);
  EXPECT_EQ(form.shellInGun.Caption, "3");
  EXPECT_EQ(form.shotsFired.Caption, "2");
  EXPECT_FALSE(form.shellMarks(3).Visible);
  EXPECT_TRUE(form.shellMarks(2).Visible);
}

TEST_F(FiringTest, FiveShellsAndTheBonusShell) {
  for (int shell = 1; shell <= 4; ++shell) Click(form.fireButton);
  Click(form.fireButton);
  EXPECT_EQ(form.shellInGun.Caption, "6");
  EXPECT_EQ(form.shotsFired.Caption, "5");
  for (std::int16_t i = 0; i <= 4; ++i) EXPECT_FALSE(form.shellMarks(i).Visible);
  EXPECT_FALSE(form.resetButton.Enabled);
  form.profile.PSet(100, 100);
  form.mountain.PSet(100, 100);
  Click(form.fireButton);
  EXPECT_EQ(form.shellInGun.Caption, "6");
  EXPECT_FALSE(form.shellInGun.Visible);
  EXPECT_EQ(form.shotsFired.Caption, "6");
  EXPECT_FALSE(form.shellGauge.Visible);
  EXPECT_TRUE(form.profile.dots().empty() && form.mountain.dots().empty());
  EXPECT_TRUE(form.resetButton.Enabled);
  EXPECT_EQ(form.advice.Caption, " Click Reset to start a new game");
  EXPECT_FALSE(form.fireButton.Enabled || form.elevationBar.Enabled || form.velocityBar.Enabled ||
               form.dragButton.Enabled);
  EXPECT_TRUE(form.shellTimer.Enabled);
  EXPECT_EQ(UserClicks(form.fireButton), InputResult::NoTarget);
}

TEST_F(FiringTest, TheRingIsLitWhileThePointerIsOnTheButton) {
  for (Object* other : {static_cast<Object*>(&form.firingPanel), static_cast<Object*>(&form.resetButton)}) {
    form.resetButton.Enabled = true;
    UserMovesOnto(form.fireButton);
    EXPECT_EQ(form.fireRing.BorderColor.Get(), Colour(0xFFFFFF));
    UserMovesOnto(*other);
    EXPECT_EQ(form.fireRing.BorderColor.Get(), Colour(0x808080)) << other->name();
  }
}

TEST_F(FiringTest, ASilencedGunFiresAllTheSame) {
  Click(form.soundButton);
  EXPECT_EQ(form.soundButton.Caption, "Sound OFF");
  Click(form.fireButton);
  EXPECT_TRUE(platform.log.empty());
  EXPECT_TRUE(form.shellTimer.Enabled);
  Click(form.soundButton);
  EXPECT_EQ(form.soundButton.Caption, "Sound ON");
  Click(form.fireButton);
  EXPECT_EQ(platform.log.size(), 1u);
}

}  // namespace
}  // namespace quintara
