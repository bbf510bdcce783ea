#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/game.h"

namespace quintara {
namespace {

class CollisionTest : public ::testing::Test, protected RunningGame {
 protected:
  CollisionTest() {
    Start();
    OpenProfile();  // 22.052 km: the mountain is 2499 twips high
    platform.log.clear();
    form.HScroll1.Value = 1;
  }
  // Puts the shell's centre at a place of Picture11.
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
      {form.Line27, 599, 0.7 * height + 5, form.Line31},  // in the triangle of Line31, too: the earlier wins
      {form.Line31, 1000, 0.35 * height, form.Line32},   {form.Line32, 1300, 0.15 * height, form.Line33},
      {form.Line33, 1340, 0.15 * height, form.Line34},   {form.Line34, 1800, 0.4 * height, form.Line35},
      {form.Line35, 2790, 0.77 * height, form.Line35}};
  for (const auto& [segment, x, y, run] : cases) {
    platform.log.clear();
    form.Label21.Caption = "1";
    FireToProfile(x, y);
    EXPECT_TRUE(Burst()) << segment.name();
    EXPECT_FALSE(form.tmrShell.Enabled || form.Shape1(1).Visible) << segment.name();
    // The fan's first ray is the normal of the slope, whose run is the next segment's.
    const double slope = std::atan((segment.Y1 - segment.Y2) / (run.X2 - run.X1));
    EXPECT_NEAR(form.Line28.X2, x, 0.1);
    EXPECT_NEAR(form.Line28.Y2, y, 0.1);
    EXPECT_NEAR(form.Line28.X1, form.Line28.X2 - 100 * std::cos(3.1416 / 2 - slope), 0.01) << segment.name();
    EXPECT_NEAR(form.Line28.Y1, form.Line28.Y2 - 100 * std::sin(3.1416 / 2 - slope), 0.01) << segment.name();
  }
}

TEST_F(CollisionTest, OutsideTheOutlineTheShellFliesOn) {
  for (const auto& [x, y] :
       {std::pair{900.0, 0.2 * height}, {1320.0, 0.10 * height}, {2700.0, 0.3 * height}}) {
    FireToProfile(x, y);
    EXPECT_FALSE(Burst());
    EXPECT_TRUE(form.tmrShell.Enabled);
  }
}

TEST_F(CollisionTest, TheFootIsComparedAcrossContainers) {
  FireTo(7800, 1200);
  EXPECT_TRUE(Burst()) << "up to 3460 of the view, not 4250";
  EXPECT_EQ(form.Line37.X2, Single(form.Shape1(0).Left + 37.5));
  EXPECT_EQ(form.Line37.Y2, Single(form.Shape1(0).Top + 37.5));
  platform.log.clear();
  FireTo(7816, 1200);
  FireTo(7800, 1230);
  FireTo(1790, 1100);
  EXPECT_FALSE(Burst());
}

TEST_F(CollisionTest, AShellThatEndsNowhereEndsSilently) {
  Click(form.cmdAdvanced);
  FireTo(9000, -1);
  EXPECT_TRUE(form.tmrShell.Enabled) << "no test holds in this tick";
  const std::string maximum = form.Label23.Caption;
  Advance(17);
  EXPECT_FALSE(form.tmrShell.Enabled || Burst());
  EXPECT_TRUE(form.Shape1(0).Visible && form.Image7.Enabled);
  EXPECT_EQ(form.Label23.Caption.Get(), maximum);
  EXPECT_EQ(form.cmdAdvanced.Caption, "ON") << "drag stays on for the next shell";

  FireTo(9990, -1);
  form.flight.vx = 10000;
  Advance(17);
  EXPECT_TRUE(Burst()) << "the last tick may still burst";
}

TEST_F(CollisionTest, APreviewInFlightSendsTheShellIntoTheGround) {
  form.VScroll1.Value = 320;
  form.VScroll2.Value = 700;
  Click(form.Image7);
  Advance(170);
  UserDragsTo(form.VScroll2, 750);
  Advance(17);
  EXPECT_TRUE(Burst());
  EXPECT_FALSE(form.tmrShell.Enabled);
}

TEST_F(CollisionTest, AHitBurnsFor400Milliseconds) {
  FireTo(22052, -1);
  EXPECT_TRUE(form.Image8.Visible && form.Shape1(0).Visible);
  EXPECT_FALSE(form.Image5.Visible || form.Label11.Visible || form.Label23.Visible || form.Image7.Enabled);
  Advance(399);
  EXPECT_TRUE(form.Image8.Visible);
  Advance(1);
  EXPECT_FALSE(form.Image8.Visible);
}

TEST_F(CollisionTest, AHitWithTheFifthShellArmsTheBonusShotAndEndsItsDrag) {
  for (int shell = 1; shell <= 4; ++shell) FireTo(12000, -1);
  Click(form.cmdAdvanced);
  FireTo(22052, -1);
  EXPECT_EQ(form.Label17.Caption, "10");
  EXPECT_EQ(form.Label24.Caption, "Bonus Shot using Advanced Trajectory Simulator");
  EXPECT_EQ(form.Label15.Caption, "0");
  EXPECT_EQ(form.cmdAdvanced.Caption, "OFF");
  EXPECT_EQ(form.cmdAdvanced.Enabled, false);
}

}  // namespace
}  // namespace quintara
