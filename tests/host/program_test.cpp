#include "program/program.h"

#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

using ProgramTest = HostTest;

TEST_F(ProgramTest, TheSameInputPrintsTheSameBytes) {
  const std::string script =
      "chance 0.1 0.2 0.3 0.4 0.5\nstart\nset Quintara.Picture8.Visible -1\nclick Quintara.Image7\n"
      "advance 3000\ndump\ndots Quintara.Picture5\ntime";
  const std::string first = Say(script);
  std::ostringstream otherOut;
  HostPlatform otherPlatform(folder.path(), otherOut);
  Program other(otherPlatform);
  Session otherSession(other.scene(), otherPlatform, otherOut, [&other] { other.Start(); });
  std::istringstream in(script);
  otherSession.Run(in);
  EXPECT_EQ(otherOut.str(), first);
}

TEST_F(ProgramTest, ThePlatform) {
  EXPECT_EQ(platform.ProgramFolder(), folder.text());
  EXPECT_EQ(HostPlatform("/", out).ProgramFolder(), "/");
  EXPECT_NE(platform.Seed(), platform.Seed());
  EXPECT_EQ(platform.ScreenWidth(), 28800);
  EXPECT_EQ(platform.ScreenHeight(), 16200);
}

}  // namespace
}  // namespace quintara::host
