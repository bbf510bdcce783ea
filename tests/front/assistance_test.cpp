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
  EXPECT_EQ(table.ToolTipOf(main.cancelButton), "Leave the game at once");
  EXPECT_EQ(table.ToolTipOf(main.advice), "");
}

TEST(AssistanceTest, WhatIsOffSaysWhy) {
  RunningGame game;
  game.Start();
  const AssistanceTable table(game.program);
  QuintaraForm& main = game.form;
  const auto expectTips = [&](std::initializer_list<std::pair<const Object*, const char*>> tips,
                              const char* when) {
    for (const auto& [control, tip] : tips) EXPECT_EQ(table.ToolTipOf(*control), tip) << when;
  };
  expectTips({{&main.magnifyButton, "Search first"}, {&main.resetButton, "After a hit or the bonus shell"}},
             "at the start");
  constexpr double at22Kilometres = 0.06325;
  game.chance.Queue(at22Kilometres);
  game.Click(main.searchButton);
  expectTips({{&main.searchButton, "The radar is searching"},
              {&main.magnifyButton, "Wait until the radar locks on"}},
             "while the radar searches");
  while (!main.magnifyButton.Enabled) game.Advance(50);
  game.Advance(50);
  expectTips({{&main.searchButton, "A target is found: Magnify first"},
              {&main.magnifyButton, "Magnify the terrain and open the simulator (M)"}},
             "with a target");
  game.Click(main.magnifyButton);
  expectTips({{&main.searchButton, "One target at a time: hit this one first"},
              {&main.magnifyButton, "The profile is open"},
              {&main.fireButton, "Move a bar first"}},
             "in the profile");
  game.Click(main.dragButton);
  expectTips({{&main.dragButton, "Drag is on until this shell bursts"}}, "with drag");
  game.FireTo(22'000, -1);
  expectTips({{&main.fireButton, "It was a hit: Reset comes in a moment"},
              {&main.dragButton, "It was a hit: Reset comes in a moment"}},
             "among the fragments");
  while (!main.resetButton.Enabled) game.Advance(100);
  for (const Object* control :
       {static_cast<const Object*>(&main.fireButton), static_cast<const Object*>(&main.elevationBar),
        static_cast<const Object*>(&main.dragButton), static_cast<const Object*>(&main.searchButton)})
    EXPECT_EQ(table.ToolTipOf(*control), "Reset first") << control->name();

  TrajectoryForm& simulator = game.program.trajectory();
  simulator.Show();
  EXPECT_EQ(table.ToolTipOf(simulator.stopButton), "Fire first");
  game.Click(simulator.fireButton);
  EXPECT_EQ(table.ToolTipOf(simulator.fireButton), "Move a bar to fire again");
}

TEST(AssistanceTest, TipsAreFoundOfWhatIsPaintedAlsoOff) {
  RunningGame game;
  game.Start();
  game.OpenProfile();
  const AssistanceTable table(game.program);
  QuintaraForm& main = game.form;
  const auto at = [&](const PictureBox& box, const Box& control) {
    const Rectangle place = control.Surface();
    return table.TippedAt(box, place.left + place.width / 2, place.top + place.height / 2);
  };
  ASSERT_FALSE(main.fireButton.Enabled);
  EXPECT_EQ(at(main.firingPanel, main.fireButton), &main.fireButton);
  EXPECT_EQ(at(main.console, main.score), &main.score);
  EXPECT_EQ(at(main.console, main.scoreHeadings), &main.scoreBoard) << "what lies behind it tells";
  EXPECT_EQ(at(main.firingPanel, main.shellInGun), nullptr);
}

}  // namespace
}  // namespace quintara
