#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class LayingTest : public ::testing::Test, protected RunningGame {
 protected:
  LayingTest() {
    Start();
    form.Picture5.Visible = true;
    form.Picture8.Visible = true;
    form.cmdAdvanced.Visible = true;
    form.Image7.Enabled = false;
  }
  std::string TimeOf(std::int16_t velocity, std::int16_t elevation, std::int16_t setting) {
    form.HScroll1.Value = setting;
    form.VScroll1.Value = static_cast<std::int16_t>(370 - elevation);
    form.VScroll2.Value = 300;
    form.VScroll2.Value = velocity;
    return form.Label31.Caption;
  }
};

std::string TimeCaption(const std::string& seconds) {
  return "Real time to impact            " + seconds + " (sec)";
}

TEST_F(LayingTest, AChangeArmsTheGunAndDrawsIt) {
  form.Line8.Visible = true;
  form.Line9.Visible = true;
  UserDragsTo(form.VScroll1, 310);
  EXPECT_EQ(form.Label1.Caption, "60");
  EXPECT_TRUE(form.Image7.Enabled && form.Line24.Visible);
  EXPECT_FALSE(form.Line8.Visible || form.Line9.Visible);
  EXPECT_NEAR(form.Line16.X1, 160, 0.01);
  EXPECT_NEAR(form.Line16.Y1, 443.4, 0.01);
  EXPECT_EQ(form.Line12.X2, form.Line16.X2);
  EXPECT_EQ(form.Line12.Y2, form.Line16.Y2);
  UserDragsTo(form.VScroll2, 750);
  EXPECT_EQ(form.Label6.Caption, "750");
  EXPECT_EQ(form.Image6.Height, 830);
  EXPECT_EQ(form.Image6.Top, 40) << "the gauge stands on its foot";
}

TEST_F(LayingTest, ForetellsTheTimeToImpact) {
  form.HScroll1.Value = 14;
  EXPECT_EQ(form.Label31.Caption, TimeCaption("0")) << "the setting alone runs no preview";
  EXPECT_EQ(TimeOf(250, 30, 15), TimeCaption("23"));
  form.HScroll1.Value = 1;
  EXPECT_EQ(form.Label31.Caption, TimeCaption("23"));
  EXPECT_EQ(TimeOf(250, 30, 1), TimeCaption("25"));
  EXPECT_EQ(TimeOf(750, 80, 1), TimeCaption("150"));
  EXPECT_EQ(form.gStepCount, 3750);
  EXPECT_LT(form.flight.y, -10000) << "it flies on under ground to the last step";
}

TEST_F(LayingTest, AnImpossibleVelocityEndsToo) {
  form.Label6.Caption = "1e30";
  form.VScroll1.Value = 300;
  EXPECT_EQ(form.gStepCount, 32767);
}

TEST_F(LayingTest, DragIsDrawnByChance) {
  chance.Queue(0.0);
  Click(form.cmdAdvanced);
  EXPECT_EQ(form.Label15.Caption, "0.001");
  EXPECT_EQ(form.cmdAdvanced.Caption, "ON");
  EXPECT_FALSE(form.cmdAdvanced.Enabled);
  EXPECT_EQ(form.Label23.Caption, "35");
  EXPECT_EQ(form.Label31.Caption, "Real time to impact:") << "nothing was laid yet: no step runs";

  form.cmdAdvanced.Enabled = true;  // as a Reset does
  form.Label25.Caption = "2";
  form.flight.time = 12.9;
  Click(form.cmdAdvanced);
  EXPECT_EQ(form.cmdAdvanced.Caption, "OFF");
  EXPECT_EQ(form.Label15.Caption, "0");
  EXPECT_EQ(form.Label31.Caption, TimeCaption("12"));
  EXPECT_EQ(form.Label23.Caption, "20");

  TimeOf(500, 45, 15);
  chance.Queue(0.9999);
  Click(form.cmdAdvanced);
  EXPECT_EQ(form.Label15.Caption, "0.01");
  EXPECT_EQ(form.flight.dt, Single(0.059)) << "the finest step, whatever the setting";
  form.HScroll1.Value = 14;
  EXPECT_EQ(form.Label31.Caption, TimeCaption(ToText(Single(69))))
      << "the setting shows the last laying's time";
}

TEST_F(LayingTest, TheBonusShotPlotsItsTrajectory) {
  form.Label25.Caption = "4";
  form.Label21.Caption = "5";
  Click(form.cmdSearch);
  form.Image7.Enabled = true;
  Click(form.Image7);  // the fifth shell arms the bonus shot
  form.tmrShell.Enabled = false;
  form.Label8.Visible = true;
  UserDragsTo(form.VScroll2, 500);
  EXPECT_FALSE(form.Line24.Visible);
  EXPECT_EQ(form.Picture10.Top, 0);
  EXPECT_FALSE(form.Label8.Visible || form.Label26.Visible);
  EXPECT_EQ(form.ScaleMode, 0);
  EXPECT_EQ(form.ScaleHeight, 11100);
  EXPECT_EQ(form.Picture5.Surface().height, 9250) << "the view does not move with the form's new scale";
  EXPECT_EQ(form.Picture5.Height, Single(9250 * 11100 / 10695.0));
  EXPECT_EQ(form.Label4.Caption,
            " Adjust Muzzle Elevation Angle       and Muzzle Velocity, then click      the red FIRE button. "
            "Be sure that   the trajectory clears the mountain");
  ASSERT_FALSE(form.Picture5.dots().empty());
  EXPECT_NEAR(form.Picture5.dots().front().x, 500 * 0.866 * 0.885 * 0.438, 0.1);
  const std::size_t dots = form.Picture5.dots().size();
  UserDragsTo(form.VScroll1, 330);
  EXPECT_NE(form.Picture5.dots().size(), dots) << "each change wipes the dots of the last";
}

}  // namespace
}  // namespace quintara
