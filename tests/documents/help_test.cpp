#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

namespace fs = std::filesystem;
using Log = std::vector<std::string>;

class HelpTest : public ::testing::Test, protected RunningGame {
 protected:
  HelpTest() {
    fs::create_directory(folder.path() / "Help");
    for (const char* name : {"Introduction", "Scenario", "Rules", "Analysis", "Code", "Printing"})
      folder.Put("Help/" + std::string(name) + ".rtf", "{\\rtf1 On " + std::string(name) + ".}");
    folder.Put("Readme.rtf", "{\\rtf1 Read me.}");
    Start();
  }
  void Choose(const char* item) {
    platform.menuAnswers = {item};
    Click(form.helpButton);
    platform.log.erase(platform.log.begin());  // the popup itself
  }

  AnalysisForm& analysis = program.analysis();
};

TEST_F(HelpTest, EachTopicLaysTheWindowOutAnew) {
  const struct {
    const char *item, *caption, *text;
    double left, top;
  } rows[] = {// The main form stands at 6742.5, 2365 and is 15315 by 11070 twips large.
              {"mnuIntro", "Introduction", "On Introduction.", 6822.5, 2705},
              {"mnuScenario", "Scenario", "On Scenario.", 4742.5, 5535},
              {"mnuRules", "Rules", "On Rules.", 4792.5, 2085},
              {"mnuPhysics", "Analysis", "On Analysis.", 6822.5, 2705},
              {"mnuCodeSegment", "Computer Code", "On Code.", 6822.5, 2705},
              {"mnuPrint", "Print", "On Printing.", 4792.5, 3285}};
  for (const auto& row : rows) {
    Choose(row.item);
    EXPECT_EQ(platform.log, Log{"show Analysis"});
    platform.log.clear();
    EXPECT_EQ(analysis.Caption, row.caption);
    EXPECT_EQ(analysis.documentBox.PlainText(), row.text);
    EXPECT_TRUE(analysis.Left == row.left && analysis.Top == row.top) << row.item;
    EXPECT_EQ(analysis.benchButton.Visible, analysis.Caption == "Analysis") << row.item;
    EXPECT_EQ(form.peakName.Visible, analysis.Caption == "Scenario") << row.item;
  }
}

TEST_F(HelpTest, CopiesASelection) {
  Choose("mnuRules");
  platform.log.clear();
  UserSelects(analysis.documentBox, 3, 0);
  EXPECT_EQ(UserClicks(analysis.copyButton), InputResult::NoTarget) << "a click selects nothing";
  UserSelects(analysis.documentBox, 3, 5);
  Click(analysis.copyButton);
  UserSelects(analysis.documentBox, 3, 0);
  Click(analysis.copyButton);
  EXPECT_EQ(platform.log, Log{"clipboard Rules"}) << "the second time nothing is selected";
  Choose("mnuPrint");
  EXPECT_TRUE(analysis.copyButton.Enabled) << "nothing switches it off while the window is open";
}

TEST_F(HelpTest, CancelClosesTheDemonstrationsAndTakesTheNamesAway) {
  Choose("mnuPhysics");
  Click(analysis.benchButton);
  Click(analysis.simulatorButton);
  EXPECT_EQ(program.trajectory().Left, form.Left + 6200);
  Choose("mnuScenario");
  EXPECT_TRUE(program.projectile().IsVisible()) << "another document leaves the demonstrations open";
  platform.log.clear();
  Click(analysis.cancelButton);
  EXPECT_EQ(platform.log, (Log{"unload Analysis", "unload frmTrajectory", "unload projectile"}));
  EXPECT_FALSE(form.valleyName.Visible || form.peakName.Visible);
  EXPECT_TRUE(analysis.loaded() && !analysis.IsVisible()) << "loaded again by the last touch, hidden";

  Choose("mnuScenario");
  platform.log.clear();
  UserCloses(analysis);
  EXPECT_TRUE(form.valleyName.Visible) << "the frame closes the document alone";
}

TEST_F(HelpTest, AMissingDocumentIsNamedInItsBox) {
  fs::remove(folder.path() / "Help" / "Rules.rtf");
  Choose("mnuReadme");
  EXPECT_EQ(form.readme.PlainText(), "Read me.");
  Click(form.closeReadmeButton);
  EXPECT_FALSE(form.readme.Visible || form.closeReadmeButton.Visible);
  Choose("mnuRules");
  EXPECT_EQ(analysis.documentBox.PlainText(), "The document Help\\Rules.rtf could not be read.");
}

TEST_F(HelpTest, ClosingTheMainFormUnloadsTheOthersInTheirOrder) {
  Choose("mnuAbout");
  Click(program.about().okButton);
  EXPECT_FALSE(program.about().loaded());
  Choose("mnuAbout");
  Choose("mnuPhysics");
  program.masters().Show();
  Click(analysis.simulatorButton);
  Click(analysis.benchButton);
  platform.log.clear();
  UserCloses(form);
  EXPECT_EQ(platform.log, (Log{"unload projectile", "unload frmTrajectory", "unload frmMasters",
                               "unload Analysis", "unload About", "unload Quintara", "end"}));
}

}  // namespace
}  // namespace quintara
