#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class ProfileTest : public ::testing::Test, protected RunningGame {
 protected:
  ProfileTest() { Start(); }
};

TEST_F(ProfileTest, TheNearestRange) {
  OpenProfile(1);
  EXPECT_EQ(form.mountain.Height, 955);
  EXPECT_EQ(form.mountain.Top, 7685);
  EXPECT_EQ(form.slope1.Y2, 668.5);
  EXPECT_NEAR(form.slope3.Y2, 114.6, 0.001);
  EXPECT_EQ(form.slope6.X2, 3460);
  EXPECT_NEAR(form.backdrop.Height, 2296, 0.01);
  EXPECT_NEAR(form.targetPicture.Left, 4382.2, 0.01);
}

TEST_F(ProfileTest, OpensEverythingThatAimingNeeds) {
  OpenProfile();
  for (const PictureBox* box : {&form.profile, &form.rangeScale, &form.heightScale, &form.firingPanel})
    EXPECT_TRUE(box->Visible);
  EXPECT_FALSE(form.fireButton.Enabled) << "dead until the gun is laid";
  EXPECT_FALSE(form.magnifyButton.Enabled || form.searchButton.Enabled || form.resetButton.Enabled);
  EXPECT_TRUE(form.dragButton.Visible && form.dragButton.Enabled);
  EXPECT_EQ(form.bestScore.Caption, "50");
  EXPECT_EQ(form.rangeTicks(0).X1, 400) << "the origin stands apart from the series";
  EXPECT_TRUE(form.rangeNumbers(33).Visible && form.heightTicks(16).Visible && form.rangeTicks(0).Visible);
  const std::size_t objects = form.objects().size();
  form.magnifyButton.Enabled = true;
  Click(form.magnifyButton);
  EXPECT_EQ(form.objects().size(), objects) << "a second Magnify loads nothing twice";
}

TEST_F(ProfileTest, TheFlightTimeSettingSurvivesAReset) {
  OpenProfile();
  UserDragsTo(form.flightTimeBar, 7);
  form.resetButton.Enabled = true;
  Click(form.resetButton);
  EXPECT_EQ(folder.Bytes("extra.txt").substr(40), "7         ");
  form.flightTimeBar.Value = 9;
  OpenProfile();
  EXPECT_EQ(form.flightTimeBar.Value, 7);
}

TEST_F(ProfileTest, AnEditedRecordGivesTheNearestBound) {
  const struct {
    const char* record;
    int value;
  } cases[] = {{"99        ", 15}, {"-4        ", 1}, {"hello     ", 1},
               {"1e99      ", 15}, {"7.5       ", 8}, {"", 1}};
  for (const auto& [record, value] : cases) {
    RunningGame game;
    game.Start();
    game.folder.Put("extra.txt", std::string(40, ' ') + record);
    game.OpenProfile();
    EXPECT_EQ(game.form.flightTimeBar.Value, value) << record;
  }
}

TEST_F(ProfileTest, WithoutARecordTheSettingStays) {
  std::filesystem::remove(folder.path() / "extra.txt");
  form.flightTimeBar.Value = 12;
  OpenProfile();
  EXPECT_EQ(form.flightTimeBar.Value, 12);
}

}  // namespace
}  // namespace quintara
