#include "front/coverage.h"

#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

TEST(CoverageTest, TheReadmeEndsAboveItsButton) {
  RunningGame game;
  game.Start();
  QuintaraForm& main = game.form;
  EXPECT_EQ(CoveredAtItsEnd(main.readme), 0) << "the button is hidden";
  game.platform.menuAnswers = {"mnuReadme"};
  game.Click(main.helpButton);
  EXPECT_EQ(CoveredAtItsEnd(main.readme), main.readme.Top + main.readme.Height - main.closeReadmeButton.Top);
  main.closeReadmeButton.Top = main.readme.Top + main.readme.Height;
  EXPECT_EQ(CoveredAtItsEnd(main.readme), 0) << "it only touches";
  EXPECT_EQ(CoveredAtItsEnd(game.program.analysis().documentBox), 0);
}

}  // namespace
}  // namespace quintara
