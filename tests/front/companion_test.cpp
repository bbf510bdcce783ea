#include "front/companion.h"

#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class CompanionTest : public testing::Test, public RunningGame {
 protected:
  CompanionTest() { Start(); }
  ~CompanionTest() override { EXPECT_LE(longest, 120U); }

  std::string Sentence() {
    longest = std::max(longest, companion.Sentence().size());
    return companion.Sentence();
  }
  void Lay(std::int16_t degrees) { UserDragsTo(form.elevationBar, static_cast<std::int16_t>(370 - degrees)); }
  void Type(std::string_view text) {
    for (const char c : text) UserTypes(program.masters().nameBox, c);
  }
  void WaitForReset() {
    while (!form.resetButton.Enabled) Advance(100);
  }
  void OpenReadme() {
    platform.menuAnswers.push_back(std::string(form.readmeItem.name()));
    Click(form.helpButton);
  }

  Companion companion{program};
  std::size_t longest = 0;
};

TEST_F(CompanionTest, ItLeadsFromTheSearchToTheNextTarget) {
  EXPECT_EQ(Sentence(), "Click S or press S to look for a target.");
  chance.Queue(379.5 / 6000);
  Click(form.searchButton);
  EXPECT_EQ(Sentence(), "The radar is tracking the target. Wait until it has locked on.");
  while (!form.magnifyButton.Enabled) Advance(50);
  EXPECT_EQ(Sentence(), "Target at 22.0 km. Click M or press M to open the terrain.");
  Click(form.magnifyButton);
  EXPECT_EQ(Sentence(), "Fire is off until you move elevation or velocity.");
  Lay(60);
  EXPECT_EQ(Sentence(), "F or the red button fires shell 1.");
  Click(form.fireButton);
  EXPECT_EQ(Sentence(),
            "Shell 1 is in the air. It is lost if you fire again or touch elevation, velocity or drag.");
  Click(form.fireButton);
  EXPECT_EQ(Sentence(), "Shell 1 was lost when the next one was fired. Shell 2 is in the air.");
  FireTo(41200, -1);
  const std::string fell = "Shell 3 fell at 41.2 km, outside the picture, 19.1 km beyond the target.";
  EXPECT_EQ(Sentence(), fell + " F or the red button fires shell 4.");
  Lay(61);
  EXPECT_EQ(Sentence(), fell + " F or the red button fires shell 4.") << "it is still good to know";
  FireTo(22000, -1);
  EXPECT_EQ(Sentence(), "A hit with shell 4: 5 points. Wait until the fragments have come down.");
  UserDragsTo(form.flightTimeBar, 1);
  FireTo(15000, 12000);
  WaitForReset();
  EXPECT_EQ(Sentence(), "Shell 5 is in the air. Wait: Reset goes on to the next target at once.");
  Click(form.resetButton);
  EXPECT_EQ(Sentence(),
            "Shell 5 was lost: its target was left while it flew. Click S or press S to look for a target.");
  OpenProfile();
  EXPECT_EQ(Sentence(), "Fire is off until you move elevation or velocity.");
}

TEST_F(CompanionTest, TheBonusShellEndsTheGameAndMayLeadToAName) {
  OpenProfile();
  for (int shell = 1; shell <= 4; ++shell) FireTo(15000, -1);
  FireTo(15000, -1);
  EXPECT_EQ(
      Sentence(),
      "Shell 5 fell at 15.0 km, 7.1 km short of the target. F or the red button fires the bonus shell.");
  Lay(60);
  form.score.Caption = "30";
  Click(form.fireButton);
  EXPECT_EQ(Sentence(), "The bonus shell is in the air. Wait: Reset starts a new game at once.");
  form.flight.vx = 0;
  form.flight.x = 22000;
  form.flight.y = 1;
  form.flight.vy = -100;
  Advance(17);
  EXPECT_EQ(Sentence(), "Enter writes \" - Master of Quintara\": the name may be left empty.");
  Type("Ada");
  EXPECT_EQ(Sentence(), "Enter writes \"Ada - Master of Quintara\" into the list.");
  form.score.Caption = "45";
  EXPECT_EQ(Sentence(), "Enter writes \"Ada - Grand Master of Quintara\" into the list.");
  form.score.Caption = "35";
  const std::string promised = Sentence();
  Type("\r");
  EXPECT_EQ(promised, "Enter writes \"" + program.masters().list.List(0) + "\" into the list.");
  EXPECT_EQ(Sentence(), "A hit with the bonus shell: 5 points. Reset (R) starts a new game.");
  program.masters().namePanel.Visible = true;
  Click(form.resetButton);
  EXPECT_EQ(Sentence(), "Enter writes no name: the points for it are gone.");
}

TEST_F(CompanionTest, TheDotsOfTheBonusShellAreExplained) {
  OpenProfile();
  for (int shell = 1; shell <= 4; ++shell) FireTo(15000, -1);
  FireTo(22000, -1);
  WaitForReset();
  Click(form.resetButton);
  OpenProfile();
  EXPECT_EQ(Sentence(), "Fire is off until you move elevation or velocity.");
  Lay(60);
  EXPECT_EQ(
      Sentence(),
      "Dots show the path of the bonus shell. Let it clear the mountain, then F or the red button fires.");
}

TEST_F(CompanionTest, AReadmeBehindTheProfileIsPointedOutAtEachOpening) {
  OpenReadme();
  EXPECT_EQ(Sentence(), "Click S or press S to look for a target.") << "there it can be seen";
  OpenProfile();
  const std::string game = "Fire is off until you move elevation or velocity.";
  EXPECT_EQ(Sentence(), game);
  const std::string hint =
      "The Readme lies on the landscape, behind the profile. Reset (R) shows it, after a hit or the bonus "
      "shell.";
  for (int opening = 1; opening <= 2; ++opening) {
    OpenReadme();
    EXPECT_EQ(Sentence(), hint);
    Advance(400);
    EXPECT_EQ(Sentence(), hint);
    FireTo(15000, -1);
    EXPECT_NE(Sentence(), hint) << "the game has something new to say";
  }
  FireTo(22000, -1);
  WaitForReset();
  OpenReadme();
  EXPECT_EQ(Sentence(), "The Readme lies on the landscape, behind the profile. Reset (R) shows it.");
  Click(form.resetButton);
  OpenProfile();
  EXPECT_EQ(Sentence(), game) << "the hint does not come back";
}

}  // namespace
}  // namespace quintara
