#include "physics/trajectory.h"

#include <gtest/gtest.h>

#include "scene/input.h"
#include "scene/scene.h"
#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

// A window that stays open, as the main form does, so that closing the simulator does not end the program.
class MainWindow : public Form {
 public:
  explicit MainWindow(Scene& scene) : Form(scene, "Main", {}) {}
};

class TrajectoryTest : public ::testing::Test {
 protected:
  TrajectoryTest() {
    mainWindow.Show();
    form.Show();
    platform.log.clear();
  }
  void Advance(std::int64_t milliseconds) {
    scene.dispatcher().AdvanceTo(scene.dispatcher().now() + milliseconds);
  }
  void Click(Object& object) { ASSERT_EQ(UserClicks(object), InputResult::Done) << FullName(object); }
  std::size_t Beeps() {
    const std::size_t beeps = platform.log.size();
    platform.log.clear();
    return beeps;
  }
  // Range or x, height or y, speed, time.
  std::vector<std::string> ReadOuts() const {
    return {form.Label20.Caption, form.Label21.Caption, form.Label27.Caption, form.Label29.Caption};
  }
  bool BallShown() const { return form.Shape1.Visible && form.Line8.Visible && form.Line9.Visible; }
  bool BallHidden() const { return !form.Shape1.Visible && !form.Line8.Visible && !form.Line9.Visible; }
  static void ExpectEnds(const Line& line, const Segment& ends) {
    EXPECT_NEAR(line.X1, ends.x1, 0.002) << FullName(line);
    EXPECT_NEAR(line.Y1, ends.y1, 0.002) << FullName(line);
    EXPECT_NEAR(line.X2, ends.x2, 0.002) << FullName(line);
    EXPECT_NEAR(line.Y2, ends.y2, 0.002) << FullName(line);
  }

  RecordingPlatform platform;
  Scene scene{platform};
  MainWindow mainWindow{scene};
  TrajectoryForm form{scene};
};

using Texts = std::vector<std::string>;

TEST_F(TrajectoryTest, AFreshWindowIsIdleBetweenItsAxes) {
  EXPECT_EQ(form.Shape1.Left, 1150);
  EXPECT_EQ(form.Shape1.Top, 5110);
  ExpectEnds(form.Line3(10), {1140, 760, 1200, 760});
  ExpectEnds(form.Line4(20), {8660, 5240, 8660, 5160});
  EXPECT_EQ(form.Label2(5).Top, 680);
  EXPECT_EQ(form.Label2(5).Caption, "5");
  EXPECT_EQ(form.Label1(10).Left, 8570);
  EXPECT_EQ(form.Label1(10).Caption, "10");
  EXPECT_TRUE(form.Line3(10).Visible && form.Line4(20).Visible && form.Label2(5).Visible &&
              form.Label1(10).Visible);
  EXPECT_FALSE(form.Line3.Has(11) || form.Line4.Has(21) || form.Label2.Has(6) || form.Label1.Has(11));
  EXPECT_FALSE(scene.dispatcher().NextDue()) << "no timer runs";
}

TEST_F(TrajectoryTest, ReplaysFromEachScrollBar) {
  UserPressesArrow(form.HScroll2, BarEnd::Max);
  UserPressesArrow(form.HScroll2, BarEnd::Min);
  EXPECT_EQ(form.dots().size(), 125u);
  EXPECT_EQ(form.Label26.Caption, "Velocity at Impact v (m/s):");
  EXPECT_EQ(form.dots().front().x, Single(12041.802734375));
  EXPECT_EQ(form.dots().front().y, Single(44985.171875));
  EXPECT_EQ(form.dots().back().x, Single(17225.396484375));
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

  UserDragsTo(form.HScroll2, 300);
  UserDragsTo(form.HScroll1, 290);
  EXPECT_EQ(form.Label5.Caption, "80");
  EXPECT_EQ(form.dots().size(), 1021u);
  EXPECT_EQ(ReadOuts(), (Texts{"3138", "4436", "299.46", "60"}));
  UserDragsTo(form.HScroll3, 10);
  EXPECT_EQ(form.dots().size(), 956u);
  EXPECT_EQ(ReadOuts(), (Texts{"1949", "4066", "288.57", "56"}));
  EXPECT_EQ(Beeps(), 0u);
}

TEST_F(TrajectoryTest, TheChartsUnitsMoveNoControl) {
  for (int i = 0; i < 3; ++i) UserPressesArrow(form.HScroll1, BarEnd::Max);
  EXPECT_EQ(form.ScaleWidth, 90000);
  EXPECT_EQ(form.ScaleHeight, 70000);
  EXPECT_NEAR(form.Shape1.Width, 1011.8, 0.05);
  EXPECT_NEAR(form.Shape1.Height, 872.3, 0.05);
  EXPECT_EQ(form.Shape1.Surface().left, 1150);
  EXPECT_EQ(form.Label1(10).Surface().left, 8570);
  EXPECT_EQ(form.Line3(10).Surface().y1, 760);
  EXPECT_EQ(form.picVector.Surface().height, 2655);
  EXPECT_EQ(form.Image4.Surface().top, 1298);
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
  EXPECT_NEAR(form.Shape1.Left, 12077.938 - 505.902, 0.01);
  EXPECT_NEAR(form.Shape1.Top, 44972.974 - 505.902, 0.01) << "half its width both ways";
  ExpectEnds(form.Line8,
             {form.Shape1.Left + 436.137, form.Shape1.Top + 872.274, form.Line8.X1, 5160 * 70000 / 8025.0});
  ExpectEnds(form.Line9, {1200 * 90000 / 8895.0, form.Line9.Y2, form.Shape1.Left, form.Shape1.Top + 436.137});
}

TEST_F(TrajectoryTest, LandsWithOneStepMoreAndLeavesTheButtons) {
  Click(form.cmdFire);
  Beeps();
  Advance(20000);
  EXPECT_EQ(Beeps(), 1u);
  EXPECT_EQ(form.Label29.Caption, "6.93") << "step 62 is below the ground, step 63 finds it";
  EXPECT_TRUE(BallHidden() && form.picVector.Visible);
  EXPECT_FALSE(form.Timer1.Enabled || form.cmdFire.Enabled);
  EXPECT_TRUE(form.cmdStop.Enabled);

  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  Advance(1000);
  EXPECT_EQ(Beeps(), 1u) << "going on after the landing is one tick";
  EXPECT_EQ(form.Label29.Caption, "7.04");
  EXPECT_FALSE(form.Timer1.Enabled);
}

TEST_F(TrajectoryTest, PausesAndGoesOn) {
  Click(form.cmdFire);
  Advance(300);
  Click(form.cmdStop);
  Advance(600);
  EXPECT_EQ(form.Label29.Caption, "0.33");
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  Advance(100);
  EXPECT_EQ(form.Label29.Caption, "0.44");
}

TEST_F(TrajectoryTest, AReplayEndsTheFlight) {
  Click(form.cmdFire);
  Advance(300);
  Beeps();
  UserDragsTo(form.HScroll2, 300);
  UserDragsTo(form.HScroll2, 100);
  EXPECT_TRUE(form.Timer1.Enabled && form.cmdFire.Enabled && BallHidden());
  EXPECT_FALSE(form.picVector.Visible || form.cmdStop.Enabled);
  Advance(500);
  EXPECT_EQ(Beeps(), 1u) << "the next tick finds the flight under ground";
  EXPECT_EQ(form.Label29.Caption, "29.50") << "499 steps of the replay and one of the tick";
  EXPECT_FALSE(form.Timer1.Enabled);

  Click(form.cmdFire);
  Advance(300);
  Click(form.cmdStop);
  Beeps();
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
  EXPECT_NEAR(form.Line8.X1, 12000 + 199.59 * 7.54, 0.05);

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
}

TEST_F(TrajectoryTest, TheSliderMovesABallInFlight) {
  Click(form.cmdFire);
  Advance(100);
  UserDragsTo(form.Slider1, 2);
  EXPECT_EQ(form.Label29.Caption, "2.07");
  EXPECT_TRUE(form.Timer1.Enabled && form.cmdStop.Enabled);
  Advance(100);
  EXPECT_EQ(form.Label29.Caption, "2.12") << "it goes on from there in finer steps";
}

TEST_F(TrajectoryTest, KeepsAPaceThatTicks) {
  Click(form.cmdFire);
  Click(form.cmdStop);
  Advance(1000);
  EXPECT_EQ(form.Timer1.Interval, 100) << "no tick, no pace";
  Click(form.cmdStop);
  Advance(20000);
  EXPECT_EQ(form.Timer1.Interval, 100) << "it is taken once";

  UserDragsTo(form.HScroll2, 300);
  UserDragsTo(form.HScroll1, 290);
  Click(form.cmdFire);
  UserDragsTo(form.HScroll3, 10);  // 5 m/s at 2358 m: 0.2 ms
  Advance(1000);
  EXPECT_EQ(form.Timer1.Interval, 100);
  UserDragsTo(form.HScroll3, 0);
  Click(form.cmdFire);
  Advance(1000);
  EXPECT_EQ(form.Label29.Caption, "1.10");
  EXPECT_EQ(form.Timer1.Interval, 91);
  Advance(90);
  EXPECT_EQ(form.Label29.Caption, "1.10");
  Advance(1);
  EXPECT_EQ(form.Label29.Caption, "1.21");
}

TEST_F(TrajectoryTest, DrawsTheVectorsUpAndDown) {
  UserDragsTo(form.Slider1, 5);
  ExpectEnds(form.Line12, {408.343, 734.485, 398.343, 724.485});  // no vector has pointed upwards yet
  ExpectEnds(form.Line13, {408.343, 734.485, 398.343, 744.485});

  UserDragsTo(form.Slider1, 0);
  ExpectEnds(form.Line5, {210.405, 698.814, 398.343, 698.814});
  ExpectEnds(form.Line6, {210.405, 698.814, 210.405, 631.566});
  ExpectEnds(form.Line7, {398.343, 631.566, 210.405, 698.814});
  ExpectEnds(form.Line10, {408.343, 698.814, 398.343, 688.814});
  ExpectEnds(form.Line11, {408.343, 698.814, 398.343, 708.814});
  ExpectEnds(form.Line12, {407.758, 628.197, 394.974, 622.150});
  ExpectEnds(form.Line13, {407.758, 628.197, 401.712, 640.981});
  ExpectEnds(form.Line14, {210.405, 631.566, 220.405, 641.566});
  ExpectEnds(form.Line16, {200.405, 641.566, 210.405, 631.566});
  EXPECT_NEAR(form.Image5.Left, 438.343, 0.002);
  EXPECT_NEAR(form.Image5.Top, 591.566, 0.002);

  UserDragsTo(form.Slider1, 5);
  ExpectEnds(form.Line7, {398.343, 734.485, 210.405, 698.814});
  ExpectEnds(form.Line12, {407.758, 736.170, 401.712, 725.070});  // the angle of the last way up
  ExpectEnds(form.Line13, {407.758, 732.801, 401.712, 743.901});
  ExpectEnds(form.Line14, {210.405, 734.485, 220.405, 724.485});
  ExpectEnds(form.Line16, {200.405, 724.485, 210.405, 734.485});
}

TEST_F(TrajectoryTest, LettersStandInFrontOfCaptions) {
  EXPECT_EQ(ObjectAt(form, 1740, 6480), &form.Image6);
  EXPECT_EQ(ObjectAt(form, 4200, 6480), &form.Image1);
  UserDragsTo(form.HScroll2, 300);
  UserDragsTo(form.HScroll1, 290);
  Click(form.cmdFire);
  Advance(100);
  const Rectangle letter = form.Image5.Surface();
  EXPECT_LT(letter.top, 255) << "the steepest vector reaches up to the panel's heading";
  EXPECT_EQ(ObjectAt(form, 6360 + letter.left + 75, letter.top + 75), &form.Image5);
}

TEST_F(TrajectoryTest, AReopenedWindowHasFreshControlsAndTheOldPause) {
  Click(form.cmdFire);
  Advance(1500);
  Click(form.cmdStop);
  Click(form.cmdCancel);
  EXPECT_EQ(platform.log.back(), "unload frmTrajectory");
  Advance(5000);
  form.Show();
  EXPECT_EQ(form.ScaleMode, 1);
  EXPECT_EQ(form.Shape1.Left, 1150);
  EXPECT_EQ(form.Label1(10).Left, 8570);
  EXPECT_EQ(form.Timer1.Interval, 100);
  EXPECT_EQ(form.cmdStop.Caption, "Stop");
  Click(form.cmdFire);
  Advance(100);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Stop") << "the first click only ends the old pause";
  EXPECT_TRUE(form.Timer1.Enabled);
  Click(form.cmdStop);
  EXPECT_EQ(form.cmdStop.Caption, "Go");
  EXPECT_FALSE(form.Timer1.Enabled);
}

}  // namespace
}  // namespace quintara
