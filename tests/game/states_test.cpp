#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

// How a game goes on after Reset, and ends, is in the transcript of two games.
class StatesTest : public ::testing::Test, protected RunningGame {
 protected:
  StatesTest() { Start(); }

  void Miss() { FireTo(12000, -1); }
};

TEST_F(StatesTest, ResetTakesTheProfileDown) {
  OpenProfile();
  UserDragsTo(form.elevationBar, 300);
  Miss();
  const std::size_t objects = form.objects().size() - 2 * 33 - 2 * 16;
  form.resetButton.Enabled = true;
  Click(form.resetButton);
  EXPECT_EQ(form.objects().size(), objects);
  EXPECT_FALSE(form.profile.Visible || form.firingPanel.Visible);
  EXPECT_FALSE(form.sightLine.Visible) << "though the nested Change has shown it";
  EXPECT_EQ(form.beam.BorderColor.Get(), Colour(0x00FFFF));
  EXPECT_EQ(form.rangeBar.X1, 500);
}

TEST_F(StatesTest, ResetRunsTheChangeWithTheBonusShotOfBefore) {
  OpenProfile();
  for (int shell = 1; shell <= 5; ++shell) Miss();
  UserDragsTo(form.elevationBar, 300);
  form.resetButton.Enabled = true;
  form.profile.Cls();
  Click(form.resetButton);
  EXPECT_FALSE(form.profile.dots().empty()) << "the nested Change plots the bonus trajectory";
  EXPECT_FALSE(form.rangeNumbers.Has(33));
  OpenProfile();
  EXPECT_EQ(form.backdrop.Top, 480) << "not where the plot had put it";
  EXPECT_EQ(form.header.Caption, "Bonus Shot using Advanced Trajectory Simulator")
      << "shell 6 keeps the bonus armed";
  EXPECT_FALSE(form.dragButton.Enabled);
}

TEST_F(StatesTest, AResetInTheLastFlightLeavesNoBurst) {
  OpenProfile();
  for (int shell = 1; shell <= 5; ++shell) Miss();
  UserDragsTo(form.elevationBar, 300);
  UserDragsTo(form.velocityBar, 700);
  Click(form.fireButton);
  Advance(170);
  Click(form.resetButton);
  platform.log.clear();
  EXPECT_TRUE(form.shellTimer.Enabled);
  Advance(60'000);
  EXPECT_TRUE(platform.log.empty());
  EXPECT_EQ(form.shotsFired.Caption, "0") << "a new game";
}

TEST_F(StatesTest, DragKeptThroughASilentEndCountsForTheBonusShell) {
  OpenProfile();
  for (int shell = 1; shell <= 4; ++shell) Miss();
  Click(form.dragButton);
  FireTo(9000, -1);
  Advance(17);
  FireTo(22052, -1);
  EXPECT_EQ(form.score.Caption, "10");
}

TEST_F(StatesTest, DragTurnedOnAmongTheFragmentsCanBeTurnedOffAfterReset) {
  OpenProfile();
  FireTo(22052, -1);
  Advance(100);
  Click(form.dragButton);
  EXPECT_NEAR(form.flight.time, (270 * 5 - 1) * 0.059, 0.05) << "the preview takes a fragment's velocity";
  Advance(3400);
  Click(form.resetButton);
  OpenProfile();
  EXPECT_EQ(form.dragButton.Caption, "OFF");
  Click(form.dragButton);
  EXPECT_EQ(form.dragButton.Caption, "OFF");
  EXPECT_EQ(form.bestScore.Caption, "25") << "45 less 5 points for each of the 4 shells left";
}

class MainWindowTest : public ::testing::Test, protected RunningGame {};

TEST_F(MainWindowTest, StartsInTheWaitingState) {
  program.Start();
  EXPECT_EQ(platform.log, std::vector<std::string>{"show Quintara"});
  EXPECT_EQ(form.Left, (28800.0 - 15315) / 2);
  EXPECT_EQ(form.Top, (16200.0 - 11070) / 2 - 200) << "a little above the centre";
}

}  // namespace
}  // namespace quintara
