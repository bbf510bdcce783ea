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
  form.heightBar.Visible = true;
  UserDragsTo(form.elevationBar, 310);
  EXPECT_EQ(form.elevation.Caption, "60");
  EXPECT_TRUE(form.fireButton.Enabled && form.sightLine.Visible);
  EXPECT_FALSE(form.rangeBar.Visible || form.heightBar.Visible);
  EXPECT_NEAR(form.barrel.X1, 160, 0.01);
  EXPECT_NEAR(form.barrel.Y1, 443.4, 0.01);
  EXPECT_EQ(form.muzzleFlash.X2, form.barrel.X2);
  EXPECT_EQ(form.muzzleFlash.Y2, form.barrel.Y2);
  UserDragsTo(form.velocityBar, 750);
  EXPECT_EQ(form.velocity.Caption, "750");
  EXPECT_EQ(form.shellGauge.Height, 830);
  EXPECT_EQ(form.shellGauge.Top, 40) << "the gauge stands on its foot";
}

TEST_F(LayingTest, ForetellsTheTimeToImpact) {
  form.flightTimeBar.Value = 14;
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("0")) << "the setting alone runs no preview";
  EXPECT_EQ(TimeOf(250, 30, 15), TimeCaption("23"));
  form.flightTimeBar.Value = 1;
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("23"));
  EXPECT_EQ(TimeOf(250, 30, 1), TimeCaption("25"));
  EXPECT_EQ(TimeOf(750, 80, 1), TimeCaption("150"));
  EXPECT_NEAR(form.flight.time, 3749 * 0.059, 0.05);
  EXPECT_LT(form.flight.y, -10000) << "it flies on under ground to the last step";
}

TEST_F(LayingTest, AnImpossibleVelocityEndsToo) {
  form.velocity.Caption = "1e30";
  form.elevationBar.Value = 300;
  EXPECT_NEAR(form.flight.time, 32766 * 0.885, 30);
}

TEST_F(LayingTest, DragIsDrawnByChance) {
  chance.Queue(0.0);
  Click(form.dragButton);
  EXPECT_EQ(form.dragConstant.Caption, "0.001");
  EXPECT_EQ(form.dragButton.Caption, "ON");
  EXPECT_FALSE(form.dragButton.Enabled);
  EXPECT_EQ(form.bestScore.Caption, "35");
  EXPECT_EQ(form.timeToImpact.Caption, "Real time to impact:") << "nothing was laid yet: no step runs";

  form.dragButton.Enabled = true;  // as a Reset does
  form.shotsFired.Caption = "2";
  form.flight.time = 12.9;
  Click(form.dragButton);
  EXPECT_EQ(form.dragButton.Caption, "OFF");
  EXPECT_EQ(form.dragConstant.Caption, "0");
  EXPECT_EQ(form.timeToImpact.Caption, TimeCaption("12"));
  EXPECT_EQ(form.bestScore.Caption, "20");

  TimeOf(500, 45, 15);
  chance.Queue(0.9999);
  Click(form.dragButton);
  EXPECT_EQ(form.dragConstant.Caption, "0.01");
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
  form.rangeUnit.Visible = true;
  UserDragsTo(form.velocityBar, 500);
  EXPECT_FALSE(form.sightLine.Visible);
  EXPECT_EQ(form.backdrop.Top, 0);
  EXPECT_FALSE(form.rangeUnit.Visible || form.heightUnit.Visible);
  EXPECT_EQ(form.ScaleMode, 0);
  EXPECT_EQ(form.ScaleHeight, 11100);
  EXPECT_EQ(form.profile.Surface().height, 9250) << "the view does not move with the form's new scale";
  EXPECT_EQ(form.profile.Height, Single(9250 * 11100 / 10695.0));
  EXPECT_EQ(form.advice.Caption,
            " Adjust Muzzle Elevation Angle       and Muzzle Velocity, then click      the red FIRE button. "
            "Be sure that   the trajectory clears the mountain");
  ASSERT_FALSE(form.profile.dots().empty());
  EXPECT_NEAR(form.profile.dots().front().x, 500 * 0.866 * 0.885 * 0.438, 0.1);
  const std::size_t dots = form.profile.dots().size();
  UserDragsTo(form.elevationBar, 330);
  EXPECT_NE(form.profile.dots().size(), dots) << "each change wipes the dots of the last";
}

}  // namespace
}  // namespace quintara
