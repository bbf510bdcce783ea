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
    ASSERT_EQ(form.searchButton.Enabled, false);
    ASSERT_TRUE(form.target.Visible && form.beam.Visible);
    ASSERT_TRUE(form.beam.X1 == 1800 && form.beam.Y1 == 2040);
  }
  std::size_t Beeps() const {
    return static_cast<std::size_t>(std::count(platform.log.begin(), platform.log.end(), "beep"));
  }
};

TEST_F(RadarTest, TheTargetDriftsInASeriesThatNeverVaries) {
  const double positions[] = {450,     1170,    2322,    4165.2,  7114.3,  11832.9, 13565.2, 14258.1,
                              14535.2, 14424.4, 14247.0, 13963.2, 13509.1, 12782.5, 11620.0, 9760.0,
                              6784.0,  2263.6,  455.4,   -267.8,  21.5,    484.4};
  std::vector<int> beepsAt;
  Search(6000);
  for (int tick = 1; tick <= 22; ++tick) {
    Advance(50);
    EXPECT_NEAR(form.target.Left, positions[tick - 1], 0.06) << tick;
    EXPECT_EQ(form.target.Top, 2000 + 25 * tick);
    EXPECT_NE(form.driftRightTimer.Enabled, form.driftLeftTimer.Enabled) << "one of the two runs";
    if (Beeps() > beepsAt.size()) beepsAt.push_back(tick);
  }
  EXPECT_EQ(beepsAt, (std::vector<int>{9, 20}));
}

TEST_F(RadarTest, TheScopeShowsTheSliceBelowTheTarget) {
  Search(6000);
  const struct {
    int ticks;
    const char *shown, *why;
  } stages[] = {{1, "1", "the target is above the first slice"},
                {3, "3", "it drifts"},
                {1, "3", "a missing picture leaves the scope"},
                {4, "10", "it drifts on"},
                {11, "1", "left of the edge no slice matches"}};
  std::filesystem::remove(folder.path() / "Graphics" / "Profile5.bmp");
  for (const auto& [ticks, shown, why] : stages) {
    Advance(50 * ticks);
    EXPECT_EQ(form.scope.Picture.Get(), (Picture{"Graphics\\Profile" + std::string(shown) + ".bmp", true}))
        << why;
  }
}

TEST_F(RadarTest, NoSliceBeginsOrEndsOnItsEdge) {
  Search(6000);
  form.flight.dt = 0;  // the target stands where it is put
  const auto shownAt = [this](double place) {
    form.flight.x = place;
    Advance(50);
    return form.scope.Picture.Get().name;
  };
  const double edges[] = {2500, 3250, 4750, 6250, 7750, 9250, 10750, 12250, 13750};
  for (std::size_t i = 0; i < std::size(edges); ++i) {
    const std::string left = "Graphics\\Profile" + std::to_string(i + 1) + ".bmp";
    EXPECT_EQ(shownAt(edges[i] - 0.25), left);
    EXPECT_EQ(shownAt(edges[i]), left) << "the picture stays";
    EXPECT_NE(shownAt(edges[i] + 0.25), left);
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
    EXPECT_TRUE(game.form.advice.Caption.Get().starts_with(" Click Magnify (M) to display "));
  }
}

TEST_F(RadarTest, ALockOnAtTheTurnRunsTwice) {
  Search(210);
  Advance(50 * 9);
  EXPECT_TRUE(form.magnifyButton.Enabled);
  EXPECT_TRUE(form.driftLeftTimer.Enabled);
  EXPECT_EQ(Beeps(), 2u);
  const std::string first = form.targetTag.Caption;
  Advance(50);
  EXPECT_FALSE(form.driftLeftTimer.Enabled);
  EXPECT_EQ(Beeps(), 3u);
  EXPECT_NEAR(form.beam.X1, 14424.4, 0.1);
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
