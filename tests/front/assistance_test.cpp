#include "front/assistance.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/game.h"

namespace quintara {
namespace {

TEST(AssistanceTest, NoRowAndNoKeyComesTwiceInAForm) {
  RunningGame game;
  const AssistanceTable table(game.program);
  std::set<const Object*> controls;
  std::set<std::pair<const Form*, std::string_view>> keys;
  for (const Assistance& row : table.rows()) {
    EXPECT_TRUE(controls.insert(&row.control).second) << FullName(row.control);
    EXPECT_TRUE(row.keys.empty() || keys.insert({&row.control.form(), row.keys}).second)
        << row.keys << " twice";
  }
  EXPECT_GT(controls.size(), 40u);
}

TEST(AssistanceTest, KeysWorkInTheirWindowAndFunctionKeysInAll) {
  RunningGame game;
  const AssistanceTable table(game.program);
  QuintaraForm& main = game.program.quintara();
  Form& bench = game.program.projectile();
  EXPECT_EQ(table.ForKey(main, "S"), &main.searchButton);
  EXPECT_EQ(table.ForKey(main, "H"), &main.helpButton);
  EXPECT_EQ(table.ForKey(bench, "F1"), &main.helpButton);
  EXPECT_EQ(table.ForKey(bench, "S"), &game.program.projectile().stopButton);
  EXPECT_EQ(table.ForKey(bench, "H"), nullptr);
  EXPECT_EQ(table.ForKey(main, ""), nullptr);
  EXPECT_EQ(table.ForKey(main, "1"), nullptr) << "a part of F1";
  EXPECT_EQ(table.ForKey(game.program.analysis(), "Ctrl+C"), &game.program.analysis().copyButton);
}

TEST(AssistanceTest, NamesAndTipsSayWhatIsShown) {
  RunningGame game;
  const AssistanceTable table(game.program);
  QuintaraForm& main = game.program.quintara();
  main.advice.Caption = "  Do   this \n";
  EXPECT_EQ(table.NameOf(main.advice), "Do this");
  EXPECT_EQ(table.NameOf(main.elevationBar), "Elevation, 30 degrees");
  EXPECT_EQ(table.NameOf(main.score), "Score, 0");
  EXPECT_EQ(table.NameOf(main.backdrop), "") << "it has nothing to say";
  EXPECT_EQ(table.ToolTipOf(main.helpButton), "Open the help menu (H)");
  EXPECT_EQ(table.ToolTipOf(main.cancelButton), "Leave the game");
  EXPECT_EQ(table.ToolTipOf(main.score), "");
}

}  // namespace
}  // namespace quintara
