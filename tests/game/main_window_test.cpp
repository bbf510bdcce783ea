#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

class MainWindowTest : public ::testing::Test, protected RunningGame {};

TEST_F(MainWindowTest, StartsInTheWaitingState) {
  program.Start();
  EXPECT_EQ(platform.log, std::vector<std::string>{"show Quintara"});
  EXPECT_TRUE(form.Picture2.Visible && form.cmdSearch.Enabled);
  EXPECT_FALSE(form.Picture5.Visible || form.cmdMagnify.Enabled || form.cmdReset.Enabled);
  EXPECT_EQ(form.Left, (28800.0 - 15315) / 2);
  EXPECT_EQ(form.Top, (16200.0 - 11070) / 2 - 200);
}

TEST_F(MainWindowTest, DrawsTheFragmentWidths) {
  for (const double value : {0.0, 0.5, 0.999, 0.021, 0.0199}) chance.Queue(value);
  Start();
  EXPECT_EQ(form.shpExplode1.Width, 30);
  EXPECT_EQ(form.shpExplode2.Width, 55);
  EXPECT_EQ(form.shpExplode3.Width, 79);
  EXPECT_EQ(form.shpExplode4.Width, 31);
  EXPECT_EQ(form.shpExplode5.Height, 80) << "the height stays";
}

TEST(AppFolder, EndsInOneSeparator) {
  const struct {
    std::string path, joined;
  } cases[] = {
      {"C:\\", "C:\\"}, {"C:\\Games\\Quintara", "C:\\Games\\Quintara\\"}, {"/no/such", "/no/such\\"}};
  for (const auto& [path, joined] : cases) {
    RecordingPlatform platform(path);
    Program program(platform);
    program.Start();
    EXPECT_EQ(program.quintara().gAppPath, joined);
  }
}

TEST_F(MainWindowTest, CancelEndsAtOnce) {
  Start();
  Click(form.cmdCancel);
  EXPECT_EQ(platform.log, std::vector<std::string>{"end"});
}

}  // namespace
}  // namespace quintara
