#include "front/shots.h"

#include <gtest/gtest.h>

#include "front/shot_table.h"
#include "tests/support/game.h"

namespace quintara {
namespace {

class ShotsTest : public testing::Test, public RunningGame {
 protected:
  ShotsTest() {
    program.scene().dispatcher().Observe([this] { watch.Look(); });
    Start();
    OpenProfile();
  }

  void Lay(std::int16_t degrees, std::int16_t velocity) {
    UserDragsTo(form.elevationBar, static_cast<std::int16_t>(370 - degrees));
    UserDragsTo(form.velocityBar, velocity);
  }
  const Shot& Last() { return watch.shots().back(); }
  void Fly() {
    while (form.shellTimer.Enabled) Advance(17);
  }
  std::string Sentence() { return SentenceOn(Last()); }

  ShotWatch watch{form};
};

TEST_F(ShotsTest, AShellIsFollowedToWhereItBursts) {
  for (const std::int16_t setting : {std::int16_t{1}, std::int16_t{15}}) {
    UserDragsTo(form.flightTimeBar, setting);
    Lay(50, 360);
    Click(form.fireButton);
    EXPECT_EQ(Last().end, Shot::End::InTheAir);
    Fly();
    // By the marks that the form itself leaves.
    EXPECT_EQ(Last().end, Shot::End::Mountain);
    EXPECT_EQ(Single(form.shells(1).Left + form.shells(1).Width / 2), form.slopeRayNormal.X2);
    EXPECT_NEAR(Last().x * 0.438 - 790 + 37.5, form.slopeRayNormal.X2, 0.1);
    EXPECT_EQ(Last().path.back().time, form.flight.time);
    EXPECT_NEAR(Last().path[1].time, setting * 0.059, 1e-6) << "each tick is on the path";
    Advance(400);
  }
  EXPECT_EQ(watch.shots().size(), 2u);
  EXPECT_EQ(MarksOn(watch.shots()[0]).size(), std::floor(watch.shots()[0].path.back().time));
  EXPECT_EQ(MarksOn(Last()).size(), std::floor(Last().path.back().time / 10))
      << "of long ticks each tenth second";

  Lay(60, 540);
  Click(form.fireButton);
  Fly();
  EXPECT_EQ(Last().end, Shot::End::Ground);
  EXPECT_EQ(Last().x, form.flight.x);
  EXPECT_EQ(form.shells(0).Left, Single(Last().x * 0.438));
}

TEST_F(ShotsTest, EachWayToEndHasItsSentence) {
  FireTo(3500, -1);  // the foot
  EXPECT_EQ(Sentence(), "Shell 1 burst on the mountain, 3.5 km from the gun, 0.0 km high.");
  FireTo(23300, -1);
  EXPECT_EQ(Sentence(), "Shell 2 fell at 23.3 km, 1.2 km beyond the target.");
  FireTo(20400, -1);
  EXPECT_EQ(Sentence(), "Shell 3 fell at 20.4 km, 1.7 km short of the target.");
  FireTo(41200, -1);
  EXPECT_EQ(Sentence(), "Shell 4 fell at 41.2 km, outside the picture, 19.1 km beyond the target.");
  FireTo(1200, -1);
  EXPECT_EQ(Last().end, Shot::End::InTheAir) << "under ground it makes one more step";
  Advance(17);
  EXPECT_EQ(Sentence(), "Shell 5 fell at 1.2 km without a burst, 20.9 km short of the target.");
  FireTo(22000, -1);
  EXPECT_EQ(Sentence(), "A hit with the bonus shell: 5 points.");
}

TEST_F(ShotsTest, AHitWithDragIsWorthMore) {
  chance.Queue(0.2);
  Click(form.dragButton);
  FireTo(22000, -1);
  EXPECT_EQ(Sentence(), "A hit with shell 1: 10 points.");
  EXPECT_EQ(Last().drag, Val("0.003"));
}

TEST_F(ShotsTest, ShellsAreLostToTheNextOneAndToWhoTouchesTheGun) {
  Lay(60, 500);
  Click(form.fireButton);
  Advance(170);
  Click(form.fireButton);
  EXPECT_EQ(SentenceOn(watch.shots()[0]), "Shell 1 was lost when the next one was fired.");
  EXPECT_EQ(Last().end, Shot::End::InTheAir);
  Advance(170);
  UserDragsTo(form.flightTimeBar, 3);
  Advance(170);
  EXPECT_EQ(Last().end, Shot::End::InTheAir) << "this bar only changes its pace";
  UserPressesArrow(form.velocityBar, BarEnd::Min);
  EXPECT_EQ(Sentence(), "Shell 2 was lost: the gun was laid anew while it flew.");
  Fly();
  EXPECT_EQ(Last().end, Shot::End::LaidAnew) << "what bursts far away is not told";
  Click(form.fireButton);
  Advance(170);
  chance.Queue(0.5);
  Click(form.dragButton);
  EXPECT_EQ(Last().end, Shot::End::LaidAnew);
}

TEST_F(ShotsTest, TheTableHasALineForEachShotAndEndsWithItsGame) {
  FireTo(23300, -1);
  Click(form.fireButton);
  EXPECT_EQ(TableOf(watch.shots()),
            "shell,target,elevation (deg),velocity (m/s),drag,end,range (m),height (m),miss (m),points\r\n"
            "1,1,30,250,0,ground,23300,0,1248,0\r\n"
            "2,1,30,250,0,in the air,,,,0\r\n");
  FireTo(22000, -1);
  while (!form.resetButton.Enabled) Advance(100);
  Click(form.resetButton);
  EXPECT_EQ(watch.shots().size(), 3u) << "the game goes on";
  EXPECT_EQ(watch.target(), 1);
  OpenProfile();
  EXPECT_EQ(watch.target(), 2);
  for (int shell = 4; shell <= 6; ++shell) FireTo(15000, -1);
  EXPECT_EQ(Last().shell, 6);
  EXPECT_EQ(Last().target, 2);
  Click(form.resetButton);
  EXPECT_EQ(watch.shots().size(), 0u) << "a new game";
}

}  // namespace
}  // namespace quintara
