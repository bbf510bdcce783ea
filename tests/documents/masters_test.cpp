#include "documents/masters.h"

#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

namespace fs = std::filesystem;

class MastersTest : public ::testing::Test, protected RunningGame {
 protected:
  MastersTest() { Start(); }

  void Put(const std::string& bytes) const { folder.Put("Masters.txt", bytes); }
  // The offer of the game, and a name typed into it.
  void Enter(const char* score, const std::string& name) {
    form.score.Caption = score;
    masters.Show();
    masters.namePanel.Visible = true;
    for (const char c : name) UserTypes(masters.nameBox, c);
    UserTypes(masters.nameBox, 13);
  }

  MastersForm& masters = program.masters();
};

TEST_F(MastersTest, EnterSavesTheListWithATitleFrom35PointsOn) {
  Put("one\r\n\r\n\xff\xfe\r\n");
  Enter("30", "Ada");
  EXPECT_EQ(folder.Bytes("Masters.txt"), "one\r\n\r\n\xff\xfe\r\n");
  EXPECT_EQ(platform.log.back(), "sound gong.wav");
  platform.log.clear();
  UserTypes(masters.nameBox, 13);
  EXPECT_TRUE(platform.log.empty()) << "one offer takes one name";
  Put("");
  masters.Unload();
  Click(form.soundButton);
  platform.log.clear();
  Enter("40", "");
  EXPECT_EQ(folder.Bytes("Masters.txt"), " - Master of Quintara\r\n")
      << "an empty name gives the title alone";
  EXPECT_EQ(platform.log, std::vector<std::string>{"show frmMasters"}) << "no gong";
}

TEST_F(MastersTest, AFreshWindowReadsTheFileAfresh) {
  masters.Show();
  EXPECT_EQ(masters.list.ListCount(), 0);
  EXPECT_EQ(platform.log, std::vector<std::string>{"show frmMasters"}) << "a missing file is an empty list";
  Put("one\r\ntwo\r\n");
  masters.Show();
  EXPECT_EQ(masters.list.ListCount(), 0) << "a second opening runs no Load";
  Click(masters.cancelButton);
  masters.Show();
  EXPECT_EQ(masters.list.ListCount(), 2);
}

TEST_F(MastersTest, WhatCannotBeReadIsNeverOverwritten) {
  fs::create_directory(folder.path() / "Masters.txt");
  Enter("40", "Ada");
  EXPECT_TRUE(fs::is_directory(folder.path() / "Masters.txt"));
  EXPECT_EQ(platform.log[0].substr(0, 4), "box ");
  EXPECT_EQ(masters.list.List(0), "Ada - Master of Quintara") << "the entry stays in the window";
  masters.Unload();
  fs::remove(folder.path() / "Masters.txt");
  Put("");
  fs::resize_file(folder.path() / "Masters.txt", std::uintmax_t{1} << 31);
  Enter("40", "Ada");
  EXPECT_EQ(fs::file_size(folder.path() / "Masters.txt"), std::uintmax_t{1} << 31);
}

TEST_F(MastersTest, TheWindowFromTheHelpMenuOffersNothing) {
  platform.menuAnswers = {"mnuMasters"};
  Click(form.helpButton);
  EXPECT_FALSE(masters.namePanel.Visible);
}

}  // namespace
}  // namespace quintara
