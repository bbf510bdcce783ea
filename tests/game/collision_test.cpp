#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class CollisionTest : public ::testing::Test, protected RunningGame {
 protected:
  CollisionTest() {
    Start();
    OpenProfile();  // 22.052 km: the mountain is 2499 twips high
    platform.log.clear();
    form.flightTimeBar.Value = 1;
  }
  // Puts the shell's centre at a place of the mountain's box.
  void FireToProfile(double x, double y) { FireTo((x + 752.5) / 0.438, (height + 677.5 - y) / 0.55); }
  bool Burst() const { return std::count(platform.log.begin(), platform.log.end(), "sound bomb.wav") > 0; }

  const double height = 2499;
};

TEST_F(CollisionTest, EachSegmentGuardsItsTriangle) {
  const struct {
    const Line& segment;
    double x, y;  // just inside
    const Line& run;
  } cases[] = {
      {form.slope1, 599, 0.7 * height + 5, form.slope2},  // in the triangle of slope2, too: the earlier wins
      {form.slope2, 1000, 0.35 * height, form.slope3},   {form.slope3, 1300, 0.15 * height, form.slope4},
      {form.slope4, 1340, 0.15 * height, form.slope5},   {form.slope5, 1800, 0.4 * height, form.slope6},
      {form.slope6, 2790, 0.77 * height, form.slope6}};
  for (const auto& [segment, x, y, run] : cases) {
    platform.log.clear();
    form.shellInGun.Caption = "1";
    FireToProfile(x, y);
    EXPECT_TRUE(Burst()) << segment.name();
    EXPECT_FALSE(form.shellTimer.Enabled || form.shells(1).Visible) << segment.name();
    // The fan's first ray is the normal of the slope, whose run is the next segment's.
    const Line& ray = form.slopeRayNormal;
    EXPECT_NEAR(ray.X2, x, 0.1);
    EXPECT_NEAR((ray.X1 - ray.X2) * (run.X2 - run.X1), (ray.Y1 - ray.Y2) * (segment.Y1 - segment.Y2), 20)
        << segment.name();
  }
}

TEST_F(CollisionTest, OutsideTheOutlineTheShellFliesOn) {
  for (const auto& [x, y] :
       {std::pair{900.0, 0.2 * height}, {1320.0, 0.10 * height}, {2700.0, 0.3 * height}}) {
    FireToProfile(x, y);
    EXPECT_FALSE(Burst());
    EXPECT_TRUE(form.shellTimer.Enabled);
  }
  FireToProfile(599, 0.8 * height);
  ASSERT_TRUE(Burst());
  platform.log.clear();
  form.slope1.X2 = form.shells(1).Left + 37.5;  // the slope ends where the shell was
  FireToProfile(599, 0.8 * height);
  EXPECT_FALSE(Burst()) << "what lies on a bound lies outside";
}

TEST_F(CollisionTest, TheFootIsComparedAcrossContainers) {
  FireTo(7800, 1200);
  EXPECT_TRUE(Burst()) << "up to 3460 of the view, not 4250";
  platform.log.clear();
  FireTo(7816, 1200);
  FireTo(7800, 1230);
  FireTo(1790, 1100);
  EXPECT_FALSE(Burst());
}

TEST_F(CollisionTest, AShellThatEndsNowhereEndsSilently) {
  Click(form.dragButton);
  FireTo(9000, -1);
  EXPECT_TRUE(form.shellTimer.Enabled) << "no test holds in this tick";
  Advance(17);
  EXPECT_FALSE(form.shellTimer.Enabled || Burst());
  EXPECT_TRUE(form.shells(0).Visible && form.fireButton.Enabled);
  EXPECT_EQ(form.dragButton.Caption, "ON") << "drag stays on for the next shell";
}

TEST_F(CollisionTest, AHitWithTheFifthShellArmsTheBonusShotAndEndsItsDrag) {
  for (int shell = 1; shell <= 4; ++shell) FireTo(12000, -1);
  Click(form.dragButton);
  FireTo(22052, -1);
  EXPECT_EQ(form.score.Caption, "10");
  EXPECT_EQ(form.header.Caption, "Bonus Shot using Advanced Trajectory Simulator");
  EXPECT_EQ(form.dragButton.Caption, "OFF");
  EXPECT_EQ(form.dragButton.Enabled, false);
}

}  // namespace
}  // namespace quintara
