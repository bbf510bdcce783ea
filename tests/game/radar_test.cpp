#include <gtest/gtest.h>

#include <vector>

#include "tests/support/game.h"

namespace quintara {
namespace {

// What the lock-on lays where is in the transcripts of the host.
class RadarTest : public ::testing::Test, protected RunningGame {
 protected:
  RadarTest() {
    std::filesystem::create_directory(folder.path() / "Graphics");
    std::string bitmap = "BM" + std::string(60, '\0');
    bitmap[18] = 49;
    bitmap[22] = 37;
    for (int i = 1; i <= 10; ++i) folder.Put("Graphics/Profile" + std::to_string(i) + ".bmp", bitmap);
    Start();
  }
  // Searches for a target that is locked on once it has come down past `altitude`.
  void Search(int altitude) {
    chance.Queue((altitude - 0.5) / 6000);
    Click(form.searchButton);
  }
  std::size_t Beeps() const {
    return static_cast<std::size_t>(std::count(platform.log.begin(), platform.log.end(), "beep"));
  }
};

TEST_F(RadarTest, TheScopeShowsTheSliceBelowTheTarget) {
  Search(6000);
  std::filesystem::remove(folder.path() / "Graphics" / "Profile5.bmp");
  // A missing picture leaves the scope, and left of the edge no slice matches.
  for (const auto& [ticks, shown] : {std::pair{1, "1"}, {3, "3"}, {1, "3"}, {4, "10"}, {11, "1"}}) {
    Advance(50 * ticks);
    EXPECT_EQ(form.scope.Picture.Get(), (Picture{"Graphics\\Profile" + std::string(shown) + ".bmp", true}));
  }
}

TEST_F(RadarTest, OnAnEdgeThePictureAndTheSpeedStay) {
  Search(6000);
  Advance(50);  // 450 twips in a tick
  form.flight.x = 7360;
  Advance(50);
  EXPECT_NEAR(form.flight.x, 7360 + 450, 0.1);
  form.flight.dt = 0;  // the target stands where it is put
  const auto shownAt = [this](double place) {
    form.flight.x = place;
    Advance(50);
    return form.scope.Picture.Get().name;
  };
  for (const double edge : {2500, 7750, 13750}) {
    const std::string left = shownAt(edge - 0.25);
    EXPECT_EQ(shownAt(edge), left) << edge;
    EXPECT_NE(shownAt(edge + 0.25), left) << edge;
  }
}

TEST_F(RadarTest, LocksOnOnceTheTargetIsLowAndBelowTheOpenPanel) {
  const struct {
    int altitude, ticks;
    const char* range;
  } cases[] = {{380, 16, "22.0"},  // cut, not rounded
               {1, 1, "10.7"},     // never nearer
               {490, 22, ""}};     // passed at tick 20, left of the panel
  for (const auto& [altitude, ticks, range] : cases) {
    RunningGame game;
    game.Start();
    game.chance.Queue((altitude - 0.5) / 6000);
    game.Click(game.form.searchButton);
    game.Advance(50 * ticks - 1);
    EXPECT_FALSE(game.form.magnifyButton.Enabled) << altitude;
    game.Advance(1);
    EXPECT_TRUE(game.form.magnifyButton.Enabled) << altitude;
    EXPECT_TRUE(game.form.targetTag.Caption.Get().starts_with(" Target at " + std::string(range)));
  }
}

TEST_F(RadarTest, ALockOnAtTheTurnRunsTwice) {
  Search(210);
  Advance(50 * 9);
  EXPECT_TRUE(form.driftLeftTimer.Enabled);
  EXPECT_EQ(Beeps(), 2u);
  const std::string first = form.targetTag.Caption;
  Advance(50);
  EXPECT_FALSE(form.driftLeftTimer.Enabled);
  EXPECT_EQ(Beeps(), 3u);
  EXPECT_NE(form.targetTag.Caption.Get(), first);
}

TEST_F(RadarTest, OnlyTheLockOnBeepIsSilenced) {
  Click(form.soundButton);
  Search(380);
  Advance(50 * 16);
  EXPECT_EQ(Beeps(), 1u);
}

}  // namespace
}  // namespace quintara
