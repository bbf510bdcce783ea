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
  UserDragsTo(form.VScroll1, 300);
  Miss();
  const std::size_t objects = form.objects().size() - 2 * 33 - 2 * 16;
  form.cmdReset.Enabled = true;
  Click(form.cmdReset);
  EXPECT_EQ(form.objects().size(), objects);
  EXPECT_FALSE(form.Picture5.Visible || form.Picture8.Visible);
  EXPECT_FALSE(form.Line24.Visible) << "though the nested Change has shown it";
  EXPECT_EQ(form.Label25.Caption, "1") << "the game goes on";
}

TEST_F(StatesTest, ResetRunsTheChangeWithTheBonusShotOfBefore) {
  OpenProfile();
  for (int shell = 1; shell <= 5; ++shell) Miss();
  UserDragsTo(form.VScroll1, 300);
  form.cmdReset.Enabled = true;
  form.Picture5.Cls();
  Click(form.cmdReset);
  EXPECT_FALSE(form.Picture5.dots().empty()) << "the nested Change plots the bonus trajectory";
  EXPECT_FALSE(form.Label3.Has(33));
  OpenProfile();
  EXPECT_EQ(form.Label24.Caption, "Bonus Shot using Advanced Trajectory Simulator")
      << "shell 6 keeps the bonus armed";
  EXPECT_FALSE(form.cmdAdvanced.Enabled);
}

TEST_F(StatesTest, AResetInTheLastFlightLeavesNoBurst) {
  OpenProfile();
  for (int shell = 1; shell <= 5; ++shell) Miss();
  UserDragsTo(form.VScroll1, 300);
  UserDragsTo(form.VScroll2, 700);
  Click(form.Image7);
  Advance(170);
  Click(form.cmdReset);
  platform.log.clear();
  EXPECT_TRUE(form.tmrShell.Enabled);
  Advance(60'000);
  EXPECT_TRUE(platform.log.empty());
  EXPECT_EQ(form.Label25.Caption, "0") << "a new game";
}

TEST_F(StatesTest, DragKeptThroughASilentEndCountsForTheBonusShell) {
  OpenProfile();
  for (int shell = 1; shell <= 4; ++shell) Miss();
  Click(form.cmdAdvanced);
  FireTo(9000, -1);
  Advance(17);
  FireTo(22052, -1);
  EXPECT_EQ(form.Label17.Caption, "10");
}

TEST_F(StatesTest, DragTurnedOnAmongTheFragmentsCanBeTurnedOffAfterReset) {
  OpenProfile();
  FireTo(22052, -1);
  Click(form.cmdAdvanced);
  Advance(3400);
  Click(form.cmdReset);
  OpenProfile();
  EXPECT_EQ(form.cmdAdvanced.Caption, "OFF");
  Click(form.cmdAdvanced);
  EXPECT_EQ(form.cmdAdvanced.Caption, "OFF");
  EXPECT_EQ(form.Label23.Caption, "25") << "45 less 5 points for each of the 4 shells left";
}

class MainWindowTest : public ::testing::Test, protected RunningGame {};

TEST_F(MainWindowTest, StartsInTheWaitingState) {
  program.Start();
  EXPECT_EQ(platform.log, std::vector<std::string>{"show Quintara"});
  EXPECT_TRUE(form.Picture2.Visible && form.cmdSearch.Enabled);
  EXPECT_FALSE(form.Picture5.Visible || form.cmdMagnify.Enabled || form.cmdReset.Enabled);
  EXPECT_EQ(form.Left, (28800.0 - 15315) / 2);
  EXPECT_EQ(form.Top, (16200.0 - 11070) / 2 - 200);
}

TEST_F(MainWindowTest, DrawsTheFragmentWidths) {
  for (const double value : {0.0, 0.5, 0.999, 0.021, 0.0199}) chance.Queue(value);
  Start();
  EXPECT_EQ(form.shpExplode1.Width, 30);
  EXPECT_EQ(form.shpExplode2.Width, 55);
  EXPECT_EQ(form.shpExplode3.Width, 79);
  EXPECT_EQ(form.shpExplode4.Width, 31);
  EXPECT_EQ(form.shpExplode5.Height, 80) << "the height stays";
}

TEST(AppFolder, EndsInOneSeparator) {
  const struct {
    std::string path, joined;
  } cases[] = {
      {"C:\\", "C:\\"}, {"C:\\Games\\Quintara", "C:\\Games\\Quintara\\"}, {"/no/such", "/no/such\\"}};
  for (const auto& [path, joined] : cases) {
    RecordingPlatform platform(path);
    Program program(platform);
    program.Start();
    EXPECT_EQ(program.quintara().shared.programFolder, joined);
  }
}

TEST_F(MainWindowTest, CancelEndsAtOnce) {
  Start();
  Click(form.cmdCancel);
  EXPECT_EQ(platform.log, std::vector<std::string>{"end"});
}

}  // namespace
}  // namespace quintara
