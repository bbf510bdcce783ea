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
    return {form.rangeText.Caption, form.heightText.Caption, form.speedText.Caption, form.timeText.Caption};
  }
  std::string Time() const { return form.timeText.Caption; }
  void FireAndAdvance(std::int64_t milliseconds) {
    Click(form.fireButton);
    Beeps();
    Advance(milliseconds);
  }
};

TEST_F(TrajectoryTest, ReplaysFromEachScrollBar) {
  EXPECT_FALSE(scene.dispatcher().NextDue()) << "no timer runs in a fresh window";
  UserPressesArrow(form.velocityBar, BarEnd::Max);
  UserPressesArrow(form.velocityBar, BarEnd::Min);
  EXPECT_EQ(form.dots().size(), 125u);
  EXPECT_EQ(form.speedCaption.Caption, "Velocity at Impact v (m/s):");
  UserDragsTo(form.elevationBar, 300);
  UserDragsTo(form.elevationBar, 350);
  EXPECT_EQ(ReadOuts(), (Texts{"693", "58", "101.39", "7"}));
  EXPECT_EQ(form.speedCaption.Caption, "Velocity at Impact (m/s):");
  UserDragsTo(form.dragBar, 7);
  UserDragsTo(form.dragBar, 0);
  EXPECT_EQ(form.dots().size(), 94u);
  EXPECT_EQ(ReadOuts(), (Texts{"582", "58", "97.64", "6"})) << "this curve ends 20 m above the ground";
}

TEST_F(TrajectoryTest, FiresABallAlongTheCurve) {
  UserDragsTo(form.elevationBar, 349);
  UserDragsTo(form.elevationBar, 350);
  Click(form.fireButton);
  EXPECT_EQ(Beeps(), 1u);
  EXPECT_EQ(form.dots().size(), 125u) << "the curve stays";
  EXPECT_TRUE(form.stopButton.Enabled && form.vectorPanel.Visible && form.ball.Visible);
  Advance(100);
  EXPECT_EQ(ReadOuts(), (Texts{"10.34", "3.58", "99.64", "0.11"}));
  Click(form.stopButton);
  Advance(600);
  EXPECT_EQ(Time(), "0.11") << "it is held";
  Click(form.stopButton);
  Advance(100);
  EXPECT_EQ(Time(), "0.22") << "and goes on";
}

TEST_F(TrajectoryTest, LandsWithOneStepMoreAndLeavesTheButtons) {
  FireAndAdvance(20000);
  EXPECT_EQ(Beeps(), 1u);
  EXPECT_EQ(Time(), "6.93") << "step 62 is below the ground, step 63 finds it";
  EXPECT_FALSE(form.ball.Visible || form.flightTimer.Enabled || form.fireButton.Enabled);
  Click(form.stopButton);
  Click(form.stopButton);
  Advance(1000);
  EXPECT_EQ(Beeps(), 1u) << "going on after the landing is one tick";
  EXPECT_EQ(Time(), "7.04");
}

TEST_F(TrajectoryTest, AReplayEndsTheFlight) {
  FireAndAdvance(300);
  UserDragsTo(form.velocityBar, 300);
  UserDragsTo(form.velocityBar, 100);
  EXPECT_FALSE(form.ball.Visible || form.vectorPanel.Visible || form.stopButton.Enabled);
  Advance(500);
  EXPECT_EQ(Beeps(), 1u) << "the next tick finds the flight under ground";
  EXPECT_EQ(Time(), "29.50") << "499 steps of the replay and one of the tick";

  FireAndAdvance(300);
  Click(form.stopButton);
  UserDragsTo(form.dragBar, 3);
  EXPECT_EQ(form.stopButton.Caption, "Stop");
  EXPECT_TRUE(form.fireButton.Enabled);
  Advance(5000);
  EXPECT_EQ(Beeps(), 0u) << "a paused flight is over";
  Click(form.fireButton);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Go") << "and so is its pause";
}

TEST_F(TrajectoryTest, TheSliderTakesTheBallToADistance) {
  UserDragsTo(form.distanceSlider, 2);
  EXPECT_EQ(ReadOuts(), (Texts{"199.59", "48.54", "94.92", "2.07"}));
  EXPECT_EQ(form.rangeCaption.Caption, "x (m):");
  EXPECT_TRUE(form.ball.Visible && form.vectorPanel.Visible && form.vyText.Visible &&
              form.fireButton.Enabled);
  UserDragsTo(form.distanceSlider, 0);
  EXPECT_EQ(ReadOuts(), (Texts{"5.54", "0.00", "99.80", "0.00"}));
  EXPECT_FALSE(form.ball.Visible);
  EXPECT_TRUE(form.projectionDown.Visible && form.vectorPanel.Visible && form.dots().empty());
  UserDragsTo(form.distanceSlider, 100);
  EXPECT_EQ(ReadOuts(), (Texts{"2766.55", "-3257.27", "271.13", "29.44"})) << "499 steps, far under ground";
  EXPECT_FALSE(form.ball.Visible || form.vectorPanel.Visible);

  UserDragsTo(form.elevationBar, 340);
  EXPECT_EQ(form.distanceSlider.Value, 0);
  EXPECT_FALSE(form.vxText.Visible || form.vyText.Visible);

  UserDragsTo(form.elevationBar, 350);
  FireAndAdvance(100);
  UserDragsTo(form.distanceSlider, 2);
  EXPECT_EQ(Time(), "2.07");
  EXPECT_TRUE(form.flightTimer.Enabled && form.stopButton.Enabled) << "it moves a ball in flight, too";
  Advance(100);
  EXPECT_EQ(Time(), "2.12") << "which goes on from there in finer steps";
}

TEST_F(TrajectoryTest, KeepsAPaceThatTicks) {
  Click(form.fireButton);
  Click(form.stopButton);
  Advance(1000);
  EXPECT_EQ(form.flightTimer.Interval, 100) << "no tick, no pace";
  Click(form.stopButton);
  Advance(20000);
  EXPECT_EQ(form.flightTimer.Interval, 100) << "it is taken once";

  UserDragsTo(form.velocityBar, 300);
  UserDragsTo(form.elevationBar, 290);
  Click(form.fireButton);
  UserDragsTo(form.dragBar, 10);  // 5 m/s at 2358 m: 0.2 ms
  Advance(1000);
  EXPECT_EQ(form.flightTimer.Interval, 100);
  UserDragsTo(form.dragBar, 0);
  FireAndAdvance(1090);
  EXPECT_EQ(form.flightTimer.Interval, 91);
  UserDragsTo(form.velocityBar, 299);
  Click(form.fireButton);
  UserDragsTo(form.velocityBar, 298);  // which takes the ball 88 s away
  Advance(1000);
  EXPECT_EQ(form.flightTimer.Interval, 1);
}

TEST_F(TrajectoryTest, DrawsTheVectorsUpAndDown) {
  UserDragsTo(form.distanceSlider, 5);
  ExpectEnds(form.resultantUpperBarb,
             {408.343, 734.485, 398.343, 724.485});  // no vector has pointed upwards yet
  UserDragsTo(form.distanceSlider, 0);
  ExpectEnds(form.resultantUpperBarb, {407.758, 628.197, 394.974, 622.150});
  UserDragsTo(form.distanceSlider, 5);
  ExpectEnds(form.resultantUpperBarb, {407.758, 736.170, 401.712, 725.070});  // the angle of the last way up
}

TEST_F(TrajectoryTest, AReopenedWindowHasFreshControlsAndTheOldPause) {
  FireAndAdvance(1500);
  Click(form.stopButton);
  Click(form.cancelButton);
  EXPECT_EQ(platform.log.back(), "unload frmTrajectory");
  Advance(5000);
  form.Show();
  EXPECT_EQ(form.ball.Left, 1150) << "in twips, as before the first flight";
  EXPECT_EQ(form.stopButton.Caption, "Stop");
  FireAndAdvance(100);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Stop") << "the first click only ends the old pause";
  EXPECT_TRUE(form.flightTimer.Enabled);
  Click(form.stopButton);
  EXPECT_EQ(form.stopButton.Caption, "Go");
  EXPECT_FALSE(form.flightTimer.Enabled);
}

}  // namespace
}  // namespace quintara
