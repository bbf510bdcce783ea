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
};

TEST_F(FiringTest, TheHeightBarStaysAtTheSummit) {
  form.elevation.Caption = "80";
  form.velocity.Caption = "300";
  Click(form.fireButton);
  double summit = 9250;
  for (int i = 0; i < 50; ++i) {
    Advance(17);
    summit = std::min(summit, static_cast<double>(form.shells(0).Top));
  }
  EXPECT_GT(form.shells(0).Top, summit + 100) << "the shell comes down";
  EXPECT_NEAR(form.heightBar.Y2, summit, 40) << "it stops one step short of the turn at most";
}

TEST_F(FiringTest, ASecondClickInFlightStartsTheNextShellFromTheGun) {
  Click(form.fireButton);
  Advance(17);
  EXPECT_TRUE(form.shells(0).Visible && form.shells(1).Visible && form.rangeBar.Visible &&
              form.heightBar.Visible);
  Click(form.fireButton);
  EXPECT_EQ(form.flight.time, 0);
  EXPECT_EQ(form.shotsFired.Caption, "2");
  EXPECT_FALSE(form.shellMarks(3).Visible);
  EXPECT_TRUE(form.shellMarks(2).Visible);
}

TEST_F(FiringTest, TheRingIsLitWhileThePointerIsOnTheButton) {
  for (Object* other : {static_cast<Object*>(&form.firingPanel), static_cast<Object*>(&form.resetButton)}) {
    form.resetButton.Enabled = true;
    UserMovesOnto(form.fireButton);
    EXPECT_EQ(form.fireRing.BorderColor.Get(), Colour(0xFFFFFF));
    UserMovesOnto(*other);
    EXPECT_EQ(form.fireRing.BorderColor.Get(), Colour(0x808080)) << other->name();
  }
  UserMovesOnto(form.fireButton);
  Click(form.fireButton);
  EXPECT_EQ(form.fireRing.BorderColor.Get(), Colour(0x808080)) << "nor while it fires";
}

TEST_F(FiringTest, ASilencedGunFiresAllTheSame) {
  Click(form.soundButton);
  Click(form.fireButton);
  EXPECT_TRUE(platform.log.empty());
  EXPECT_TRUE(form.shellTimer.Enabled);
  Click(form.soundButton);
  Click(form.fireButton);
  EXPECT_EQ(platform.log, std::vector<std::string>{"sound biggun.wav"});
}

}  // namespace
}  // namespace quintara
