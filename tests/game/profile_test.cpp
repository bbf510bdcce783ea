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
  EXPECT_EQ(form.Picture11.Height, 955);
  EXPECT_EQ(form.Picture11.Top, 7685);
  EXPECT_EQ(form.Line27.Y2, 668.5);
  EXPECT_NEAR(form.Line32.Y2, 114.6, 0.001);
  EXPECT_EQ(form.Line35.X2, 3460);
  EXPECT_NEAR(form.Picture10.Height, 2296, 0.01);
  EXPECT_NEAR(form.Image5.Left, 4382.2, 0.01);
}

TEST_F(ProfileTest, OpensEverythingThatAimingNeeds) {
  OpenProfile();
  for (const PictureBox* box : {&form.Picture5, &form.Picture6, &form.Picture7, &form.Picture8})
    EXPECT_TRUE(box->Visible);
  EXPECT_FALSE(form.Image7.Enabled) << "dead until the gun is laid";
  EXPECT_FALSE(form.cmdMagnify.Enabled || form.cmdSearch.Enabled || form.cmdReset.Enabled);
  EXPECT_TRUE(form.cmdAdvanced.Visible && form.cmdAdvanced.Enabled);
  EXPECT_EQ(form.Label23.Caption, "50");
  EXPECT_EQ(form.Line10(0).X1, 400) << "the origin stands apart from the series";
  EXPECT_TRUE(form.Label3(33).Visible && form.Line11(16).Visible && form.Line10(0).Visible);
  const std::size_t objects = form.objects().size();
  form.cmdMagnify.Enabled = true;
  Click(form.cmdMagnify);
  EXPECT_EQ(form.objects().size(), objects) << "a second Magnify loads nothing twice";
}

TEST_F(ProfileTest, TheFlightTimeSettingSurvivesAReset) {
  OpenProfile();
  UserDragsTo(form.HScroll1, 7);
  form.cmdReset.Enabled = true;
  Click(form.cmdReset);
  EXPECT_EQ(folder.Bytes("extra.txt").substr(40), "7         ");
  form.HScroll1.Value = 9;
  OpenProfile();
  EXPECT_EQ(form.HScroll1.Value, 7);
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
    EXPECT_EQ(game.form.HScroll1.Value, value) << record;
  }
}

TEST_F(ProfileTest, WithoutARecordTheSettingStays) {
  std::filesystem::remove(folder.path() / "extra.txt");
  form.HScroll1.Value = 12;
  OpenProfile();
  EXPECT_EQ(form.HScroll1.Value, 12);
}

}  // namespace
}  // namespace quintara
