#include "physics/trajectory.h"

#include "tests/physics/demonstration.h"

namespace quintara {
namespace {

using Texts = std::vector<std::string>;

// The axes, and many shots to the last digit, are in the transcript of the golden flights.
class TrajectoryTest : public DemonstrationTest<TrajectoryForm> {
 protected:
  // Range or x, height or y, speed, time.
  Texts ReadOuts() const {
    return {form.Label20.Caption, form.Label21.Caption, form.Label27.Caption, form.Label29.Caption};
  }
  std::string Time() const { return form.Label29.Caption; }
  bool BallShown() const { return form.Shape1.Visible && form.Line8.Visible && form.Line9.Visible; }
  bool BallHidden() const { return !form.Shape1.Visible && !form.Line8.Visible && !form.Line9.Visible; }
  void FireAndAdvance(std::int64_t milliseconds) {
    Click(form.cmdFire);
    Beeps();
    Advance(milliseconds);
  }
  void LaySteepAndFast() {
    UserDragsTo(form.HScroll2, 300);
    UserDragsTo(form.HScroll1, 290);
  }
};

TEST_F(TrajectoryTest, ReplaysFromEachScrollBar) {
  EXPECT_FALSE(scene.dispatcher().NextDue()) << "no timer runs in a fresh window";
  UserPressesArrow(form.HScroll2, BarEnd::Max);
  UserPressesArrow(form.HScroll2, BarEnd::Min);
  EXPECT_EQ(form.dots().size(), 125u);
  EXPECT_EQ(form.Label26.Caption, "Velocity at Impact v (m/s):");
  EXPECT_EQ(form.dots().front().x, Single(12041.802734375));
  EXPECT_EQ(form.dots().front().y, Single(44985.171875));
  EXPECT_EQ(form.dots().back().width, 2);
  UserDragsTo(form.HScroll1, 300);
  UserDragsTo(form.HScroll1, 350);
  EXPECT_EQ(form.dots().size(), 125u);
  EXPECT_EQ(ReadOuts(), (Texts{"693", "58", "101.39", "7"}));
  EXPECT_EQ(form.Label26.Caption, "Velocity at Impact (m/s):");
  UserDragsTo(form.HScroll3, 7);
  EXPECT_EQ(form.Label11.Caption, "0.07");
  UserDragsTo(form.HScroll3, 0);
  EXPECT_EQ(form.dots().size(), 94u);
  EXPECT_EQ(ReadOuts(), (Texts{"582", "58", "97.64", "6"})) << "this curve ends 20 m above the ground";
  LaySteepAndFast();
  EXPECT_EQ(form.Label5.Caption, "80");
  EXPECT_EQ(ReadOuts(), (Texts{"3138", "4436", "299.46", "60"}));
  UserDragsTo(form.HScroll3, 10);
  EXPECT_EQ(form.dots().size(), 956u);
  EXPECT_EQ(ReadOuts(), (Texts{"1949", "4066", "288.57", "56"}));
  EXPECT_EQ(Beeps(), 0u);
}

TEST_F(TrajectoryTest, FiresABallAlongTheCurve) {
  UserDragsTo(form.HScroll1, 349);
  UserDragsTo(form.HScroll1, 350);
  Click(form.cmdFire);
  EXPECT_EQ(Beeps(), 1u);
  EXPECT_EQ(form.dots().size(), 125u) << "the curve stays";
  EXPECT_FALSE(form.cmdFire.Enabled);
  EXPECT_TRUE(form.cmdStop.Enabled && form.picVector.Visible && BallShown());
  Advance(100);
  EXPECT_EQ(ReadOuts(), (Texts{"10.34", "3.58", "99.64", "0.11"}));
  EXPECT_EQ(form.Label23.Caption, "93.97");
  EXPECT_EQ(form.Label25.Caption, "33.12");
  EXPECT_EQ(form.Label18.Caption, "Range (m):");
  ExpectPlace(form.Shape1, 12077.938 - 505.902, 44972.974 - 505.902);  // half its width both ways
  ExpectEnds(form.Line8,
             {form.Shape1.Left + 436.137, form.Shape1.Top + 872.274, form.Line8.X1, 5160 * 70000 / 8025.0});
  ExpectEnds(form.Line9, {1200 * 90000 / 8895.0, form.Line9.Y2, form.Shape1.Left, form.Shape1.Top + 436.137});

  Click(form.cmdStop);
  Advance(600);
  EXPECT_EQ(Time(), "0.11") << "it is held";
  Click(form.cmdStop);
  Advance(100);
  EXPECT_EQ(Time(), "0.22") << "and goes on";
}

TEST_F(TrajectoryTest, LandsWithOneStepMoreAndLeavesTheButtons) {
  FireAndAdvance(20000);
  EXPECT_EQ(Beeps(), 1u);
  EXPECT_EQ(Time(), "6.93") << "step 62 is below the ground, step 63 finds it";
  EXPECT_TRUE(BallHidden() && form.picVector.Visible && form.cmdStop.Enabled);
  EXPECT_FALSE(form.Timer1.Enabled || form.cmdFire.Enabled);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  Advance(1000);
  EXPECT_EQ(Beeps(), 1u) << "going on after the landing is one tick";
  EXPECT_EQ(Time(), "7.04");
  EXPECT_FALSE(form.Timer1.Enabled);
}

TEST_F(TrajectoryTest, AReplayEndsTheFlight) {
  FireAndAdvance(300);
  UserDragsTo(form.HScroll2, 300);
  UserDragsTo(form.HScroll2, 100);
  EXPECT_TRUE(form.Timer1.Enabled && form.cmdFire.Enabled && BallHidden());
  EXPECT_FALSE(form.picVector.Visible || form.cmdStop.Enabled);
  Advance(500);
  EXPECT_EQ(Beeps(), 1u) << "the next tick finds the flight under ground";
  EXPECT_EQ(Time(), "29.50") << "499 steps of the replay and one of the tick";
  EXPECT_FALSE(form.Timer1.Enabled);

  FireAndAdvance(300);
  Click(form.cmdStop);
  UserDragsTo(form.HScroll3, 3);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  EXPECT_TRUE(form.cmdFire.Enabled);
  Advance(5000);
  EXPECT_EQ(Beeps(), 0u) << "a paused flight is over";
  Click(form.cmdFire);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go") << "and so is its pause";
}

TEST_F(TrajectoryTest, TheSliderTakesTheBallToADistance) {
  UserDragsTo(form.Slider1, 2);
  EXPECT_EQ(ReadOuts(), (Texts{"199.59", "48.54", "94.92", "2.07"}));
  EXPECT_EQ(form.Label18.Caption, "x (m):");
  EXPECT_EQ(form.Label26.Caption, "Velocity (m/s):");
  EXPECT_TRUE(BallShown() && form.picVector.Visible && form.Label25.Visible && form.cmdFire.Enabled);
  EXPECT_EQ(form.dots().size(), 35u);
  EXPECT_NEAR(form.Shape1.Left, 12000 + 199.59 * 7.54 - 436.137, 0.05);
  EXPECT_NEAR(form.Shape1.Top, 44600 - 48.54 * 7.54, 0.05);

  UserDragsTo(form.Slider1, 0);
  EXPECT_EQ(ReadOuts(), (Texts{"5.54", "0.00", "99.80", "0.00"}));
  EXPECT_FALSE(form.Shape1.Visible);
  EXPECT_TRUE(form.Line8.Visible && form.picVector.Visible && form.dots().empty());
  UserDragsTo(form.Slider1, 100);
  EXPECT_EQ(ReadOuts(), (Texts{"2766.55", "-3257.27", "271.13", "29.44"})) << "499 steps, far under ground";
  EXPECT_EQ(form.dots().size(), 116u) << "the curve ends at the ground";
  EXPECT_TRUE(BallHidden() && !form.picVector.Visible);

  UserDragsTo(form.HScroll1, 340);
  EXPECT_EQ(form.Slider1.Value, 0);
  EXPECT_EQ(form.Label22.Caption, "");
  EXPECT_FALSE(form.Label23.Visible || form.Label25.Visible);

  UserDragsTo(form.HScroll1, 350);
  FireAndAdvance(100);
  UserDragsTo(form.Slider1, 2);
  EXPECT_EQ(Time(), "2.07");
  EXPECT_TRUE(form.Timer1.Enabled && form.cmdStop.Enabled) << "it moves a ball in flight, too";
  Advance(100);
  EXPECT_EQ(Time(), "2.12") << "which goes on from there in finer steps";
}

TEST_F(TrajectoryTest, KeepsAPaceThatTicks) {
  Click(form.cmdFire);
  Click(form.cmdStop);
  Advance(1000);
  EXPECT_EQ(form.Timer1.Interval, 100) << "no tick, no pace";
  Click(form.cmdStop);
  Advance(20000);
  EXPECT_EQ(form.Timer1.Interval, 100) << "it is taken once";

  LaySteepAndFast();
  Click(form.cmdFire);
  UserDragsTo(form.HScroll3, 10);  // 5 m/s at 2358 m: 0.2 ms
  Advance(1000);
  EXPECT_EQ(form.Timer1.Interval, 100);
  UserDragsTo(form.HScroll3, 0);
  FireAndAdvance(1090);
  EXPECT_EQ(Time(), "1.10");
  EXPECT_EQ(form.Timer1.Interval, 91);
  Advance(1);
  EXPECT_EQ(Time(), "1.21");
}

TEST_F(TrajectoryTest, DrawsTheVectorsUpAndDown) {
  UserDragsTo(form.Slider1, 5);
  ExpectEnds(form.Line12, {408.343, 734.485, 398.343, 724.485});  // no vector has pointed upwards yet
  UserDragsTo(form.Slider1, 0);
  ExpectEnds(form.Line7, {398.343, 631.566, 210.405, 698.814});
  ExpectEnds(form.Line12, {407.758, 628.197, 394.974, 622.150});
  ExpectEnds(form.Line14, {210.405, 631.566, 220.405, 641.566});
  ExpectEnds(form.Line16, {200.405, 641.566, 210.405, 631.566});
  ExpectPlace(form.Image5, 438.343, 591.566);
  UserDragsTo(form.Slider1, 5);
  ExpectEnds(form.Line7, {398.343, 734.485, 210.405, 698.814});
  ExpectEnds(form.Line12, {407.758, 736.170, 401.712, 725.070});  // the angle of the last way up
  ExpectEnds(form.Line14, {210.405, 734.485, 220.405, 724.485});
  ExpectEnds(form.Line16, {200.405, 724.485, 210.405, 734.485});
}

TEST_F(TrajectoryTest, AReopenedWindowHasFreshControlsAndTheOldPause) {
  FireAndAdvance(1500);
  Click(form.cmdStop);
  Click(form.cmdCancel);
  EXPECT_EQ(platform.log.back(), "unload frmTrajectory");
  Advance(5000);
  form.Show();
  EXPECT_EQ(form.ScaleMode, 1);
  EXPECT_EQ(form.Shape1.Left, 1150);
  EXPECT_EQ(form.Label1(10).Left, 8570);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  FireAndAdvance(100);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop") << "the first click only ends the old pause";
  EXPECT_TRUE(form.Timer1.Enabled);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  EXPECT_FALSE(form.Timer1.Enabled);
}

}  // namespace
}  // namespace quintara
