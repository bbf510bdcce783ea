#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class LayingTest : public ::testing::Test, protected RunningGame {
 protected:
  LayingTest() {
    Start();
    form.profile.Visible = true;
    form.firingPanel.Visible = true;
    form.dragButton.Visible = true;
    form.fireButton.Enabled = false;
  }
  std::string TimeOf(std::int16_t velocity, std::int16_t elevation, std::int16_t setting) {
    form.flightTimeBar.Value = setting;
    form.elevationBar.Value = static_cast<std::int16_t>(370 - elevation);
    form.velocityBar.Value = 300;
    form.velocityBar.Value = velocity;
    return form.timeToImpact.Caption;
  }
};

std::string TimeCaption(const std::string& seconds) {
  return "Real time to impact            " + seconds + " (sec)";
}

TEST_F(LayingTest, AChangeArmsTheGunAndDrawsIt) {
  form.rangeBar.Visible = true;
  UserDragsTo(form.elevationBar, 310);
  EXPECT_EQ(form.elevation.Caption, "60");
  EXPECT_TRUE(form.fireButton.Enabled && form.sightLine.Visible);
  EXPECT_FALSE(form.rangeBar.Visible);
  UserDragsTo(form.velocityBar, 750);
  EXPECT_EQ(form.shellGauge.Top + form.shellGauge.Height, 870) << "the gauge stands on its foot";
}

TEST_F(LayingTest, ForetellsTheTimeToImpact) {
  form.flightTimeBar.Value = 14;
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("0")) << "the setting alone runs no preview";
  EXPECT_EQ(TimeOf(250, 30, 15), TimeCaption("23"));
  form.flightTimeBar.Value = 1;
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("23"));
  EXPECT_EQ(TimeOf(250, 30, 1), TimeCaption("25"));
}

TEST_F(LayingTest, DragIsDrawnByChance) {
  chance.Queue(0.0);
  Click(form.dragButton);
  EXPECT_EQ(form.dragConstant.Caption, "0.001");
  EXPECT_FALSE(form.dragButton.Enabled);
  EXPECT_EQ(form.timeToImpact.Caption, "Real time to impact:") << "nothing was laid yet: no step runs";

  form.dragButton.Enabled = true;  // as a Reset does
  form.shotsFired.Caption = "2";
  form.flight.time = 12.9;
  Click(form.dragButton);
  EXPECT_EQ(form.dragConstant.Caption, "0");
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("12"));
  EXPECT_EQ(form.bestScore.Caption, "20");

  TimeOf(500, 45, 15);
  Click(form.dragButton);
  EXPECT_EQ(form.flight.dt, Single(0.059)) << "the finest step, whatever the setting";
  form.flightTimeBar.Value = 14;
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption(ToText(Single(69))))
      << "the setting shows the last laying's time";
}

TEST_F(LayingTest, TheBonusShotPlotsItsTrajectory) {
  form.shotsFired.Caption = "4";
  form.shellInGun.Caption = "5";
  Click(form.searchButton);
  form.fireButton.Enabled = true;
  Click(form.fireButton);  // the fifth shell arms the bonus shot
  form.shellTimer.Enabled = false;
  UserDragsTo(form.velocityBar, 500);
  EXPECT_FALSE(form.sightLine.Visible || form.rangeUnit.Visible);
  EXPECT_EQ(form.profile.Surface().height, 9250) << "the view does not move with the form's new scale";
  EXPECT_TRUE(form.advice.Caption.Get().ends_with("the trajectory clears the mountain"));
  ASSERT_FALSE(form.profile.dots().empty());
  const std::size_t dots = form.profile.dots().size();
  UserDragsTo(form.elevationBar, 330);
  EXPECT_NE(form.profile.dots().size(), dots) << "each change wipes the dots of the last";
}

}  // namespace
}  // namespace quintara
