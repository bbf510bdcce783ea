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
  EXPECT_EQ(form.Image1.Height, 975);
  EXPECT_EQ(form.Line27.Y1, 975);
  EXPECT_EQ(form.Line27.Y2, 668.5);
  EXPECT_EQ(form.Line31.Y1, form.Line27.Y2);
  EXPECT_NEAR(form.Line32.Y2, 114.6, 0.001);
  EXPECT_NEAR(form.Line34.Y2, 716.25, 0.001);
  EXPECT_EQ(form.Line35.X2, 3460);
  EXPECT_EQ(form.Line35.Y2, 975);
  EXPECT_NEAR(form.Picture10.Height, 2296, 0.01);
  EXPECT_EQ(form.Image9.Height, form.Picture10.Height);
  EXPECT_NEAR(form.Image5.Left, 4382.2, 0.01);
  EXPECT_NEAR(form.Label11.Left, 4722.2, 0.01);
}

TEST_F(ProfileTest, OpensEverythingThatAimingNeeds) {
  OpenProfile();
  for (const PictureBox* box : {&form.Picture5, &form.Picture6, &form.Picture7, &form.Picture8})
    EXPECT_TRUE(box->Visible);
  for (const Line* line : {&form.Line27, &form.Line31, &form.Line35, &form.Line13})
    EXPECT_FALSE(line->Visible);
  EXPECT_FALSE(form.Image7.Enabled) << "dead until the gun is laid";
  EXPECT_FALSE(form.cmdMagnify.Enabled || form.cmdSearch.Enabled || form.cmdReset.Enabled);
  EXPECT_TRUE(form.cmdAdvanced.Visible && form.cmdAdvanced.Enabled);
  EXPECT_EQ(form.Label23.Caption, "50");
  EXPECT_NEAR(form.Line16.X2, 300 * std::cos(30 * 3.1416 / 180) + 110, 0.01);
  EXPECT_EQ(form.Line12.X2, 400) << "of the gun's lines only the barrel is drawn";
  EXPECT_EQ(form.Label3(33).Left, 33 * 438 + 240);
  EXPECT_EQ(form.Label3(33).Caption, "33");
  EXPECT_EQ(form.Line10(33).X1, 14804);
  EXPECT_EQ(form.Line10(33).Y2, 120);
  EXPECT_EQ(form.Line10(0).X1, 400) << "the origin stands apart from the series";
  EXPECT_EQ(form.Label7(16).Top, 428);
  EXPECT_EQ(form.Line11(16).Y2, 528);
  EXPECT_TRUE(form.Label3(1).Visible && form.Line11(16).Visible && form.Line10(0).Visible &&
              form.Label26.Visible);
}

TEST_F(ProfileTest, TheFlightTimeSettingSurvivesAReset) {
  OpenProfile();
  UserDragsTo(form.HScroll1, 7);
  form.cmdReset.Enabled = true;
  Click(form.cmdReset);
  EXPECT_EQ(Bytes("extra.txt").substr(40), "7         ");
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
    std::ofstream(game.folder.path() / "extra.txt", std::ios::binary) << std::string(40, ' ') << record;
    game.OpenProfile();
    EXPECT_EQ(game.form.HScroll1.Value, value) << record;
  }
}

TEST_F(ProfileTest, WithoutARecordTheSettingStays) {
  std::filesystem::remove(folder.path() / "extra.txt");
  std::filesystem::create_directory(folder.path() / "extra.txt");
  form.HScroll1.Value = 12;
  OpenProfile();
  EXPECT_EQ(form.HScroll1.Value, 12);
}

TEST_F(ProfileTest, ASecondMagnifyLoadsNothingTwice) {
  OpenProfile();
  const std::size_t objects = form.objects().size();
  form.cmdMagnify.Enabled = true;
  Click(form.cmdMagnify);
  EXPECT_EQ(form.objects().size(), objects);
}

}  // namespace
}  // namespace quintara
