#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class FiringTest : public ::testing::Test, protected RunningGame {
 protected:
  FiringTest() {
    Start();
    form.Picture5.Visible = true;
    form.Picture8.Visible = true;
  }
  void Lay(const char* elevation, const char* velocity) {
    form.Label1.Caption = elevation;
    form.Label6.Caption = velocity;
  }
};

TEST_F(FiringTest, TheFirstTickOfAShellAndTheFlash) {
  Lay("80", "700");  // a burst would make the flash stay longer
  Click(form.Image7);
  EXPECT_EQ(platform.log, std::vector<std::string>{"sound biggun.wav"});
  EXPECT_EQ(form.Label21.Caption, "2");
  EXPECT_EQ(form.Label25.Caption, "1");
  EXPECT_FALSE(form.Shape6(4).Visible);
  Advance(16);
  EXPECT_FALSE(form.Shape1(0).Visible);
  Advance(1);
  EXPECT_EQ(form.flight.dt, Single(0.885));
  EXPECT_EQ(form.Shape1(0).Top, Single(9250 - form.flight.y * 0.55));
  EXPECT_EQ(form.Shape1(1).Left, Single(form.flight.x * 0.438 - 790));
  EXPECT_TRUE(form.Shape1(0).Visible && form.Shape1(1).Visible && form.Line8.Visible && form.Line9.Visible);
  EXPECT_EQ(form.Line8.X1, Single(form.Shape1(0).Left + 380));
  EXPECT_EQ(form.Line9.Y2, form.Shape1(0).Top);
  Advance(382);
  EXPECT_TRUE(form.Line12.Visible);
  Advance(1);
  EXPECT_FALSE(form.Line12.Visible) << "it goes after 400 ms";
}

TEST_F(FiringTest, TheFlightTimeSettingCountsFromTheNextStep) {
  Lay("60", "700");
  Click(form.Image7);
  Advance(17);
  const double before = form.flight.time;
  form.HScroll1.Value = 1;
  Advance(17);
  EXPECT_EQ(form.flight.time, Single(before + Single(0.059)));
}

TEST_F(FiringTest, TheHeightBarStaysAtTheSummit) {
  Lay("80", "300");
  Click(form.Image7);
  double highest = 0;
  for (int i = 0; i < 50; ++i) {
    Advance(17);
    highest = std::max(highest, static_cast<double>(form.flight.y));
  }
  EXPECT_LT(form.flight.vy, 0);
  EXPECT_NEAR(form.Line9.Y2, 9250 - highest * 0.55, 40) << "it stops one step short of the turn at most";
}

TEST_F(FiringTest, ASecondClickInFlightStartsTheNextShellFromTheGun) {
  Lay("60", "700");
  Click(form.Image7);
  Advance(170);
  Click(form.Image7);
  EXPECT_EQ(form.flight.x, 0);
  EXPECT_EQ(form.flight.time, 0);
  EXPECT_EQ(form.Label21.Caption, "3");
  EXPECT_EQ(form.Label25.Caption, "2");
  EXPECT_FALSE(form.Shape6(3).Visible);
  EXPECT_TRUE(form.Shape6(2).Visible);
}

TEST_F(FiringTest, FiveShellsAndTheBonusShell) {
  for (int shell = 1; shell <= 4; ++shell) Click(form.Image7);
  Click(form.Image7);
  EXPECT_EQ(form.Label21.Caption, "6");
  EXPECT_EQ(form.Label25.Caption, "5");
  for (std::int16_t i = 0; i <= 4; ++i) EXPECT_FALSE(form.Shape6(i).Visible);
  EXPECT_FALSE(form.cmdReset.Enabled);
  form.Picture5.PSet(100, 100);
  form.Picture11.PSet(100, 100);
  Click(form.Image7);
  EXPECT_EQ(form.Label21.Caption, "6");
  EXPECT_FALSE(form.Label21.Visible);
  EXPECT_EQ(form.Label25.Caption, "6");
  EXPECT_FALSE(form.Image6.Visible);
  EXPECT_TRUE(form.Picture5.dots().empty() && form.Picture11.dots().empty());
  EXPECT_TRUE(form.cmdReset.Enabled);
  EXPECT_EQ(form.Label4.Caption, " Click Reset to start a new game");
  EXPECT_FALSE(form.Image7.Enabled || form.VScroll1.Enabled || form.VScroll2.Enabled ||
               form.cmdAdvanced.Enabled);
  EXPECT_TRUE(form.tmrShell.Enabled);
  EXPECT_EQ(UserClicks(form.Image7), InputResult::NoTarget);
}

TEST_F(FiringTest, TheRingIsLitWhileThePointerIsOnTheButton) {
  for (Object* other : {static_cast<Object*>(&form.Picture8), static_cast<Object*>(&form.cmdReset)}) {
    form.cmdReset.Enabled = true;
    UserMovesOnto(form.Image7);
    EXPECT_EQ(form.Shape5.BorderColor.Get(), Colour(0xFFFFFF));
    UserMovesOnto(*other);
    EXPECT_EQ(form.Shape5.BorderColor.Get(), Colour(0x808080)) << other->name();
  }
}

TEST_F(FiringTest, ASilencedGunFiresAllTheSame) {
  Click(form.cmdSound);
  EXPECT_EQ(form.cmdSound.Caption, "Sound OFF");
  Click(form.Image7);
  EXPECT_TRUE(platform.log.empty());
  EXPECT_TRUE(form.tmrShell.Enabled);
  Click(form.cmdSound);
  EXPECT_EQ(form.cmdSound.Caption, "Sound ON");
  Click(form.Image7);
  EXPECT_EQ(platform.log.size(), 1u);
}

}  // namespace
}  // namespace quintara
