#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class ProfileTest : public ::testing::Test, protected RunningGame {
 protected:
  ProfileTest() { Start(); }
};

TEST_F(ProfileTest, OpensEverythingThatAimingNeeds) {
  OpenProfile();
  EXPECT_FALSE(form.fireButton.Enabled) << "dead until the gun is laid";
  EXPECT_FALSE(form.magnifyButton.Enabled || form.searchButton.Enabled || form.resetButton.Enabled);
  EXPECT_TRUE(form.rangeNumbers(33).Visible && form.heightTicks(16).Visible);
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

}  // namespace
}  // namespace quintara
