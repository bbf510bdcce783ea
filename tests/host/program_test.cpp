#include "program/program.h"

#include <gtest/gtest.h>

#include <sstream>

#include "host/session.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {
namespace {

class ProgramTest : public ::testing::Test {
 protected:
  std::string Say(const std::string& lines) {
    out.str("");
    std::istringstream in(lines);
    session.Run(in);
    return out.str();
  }

  TemporaryFolder folder;
  std::ostringstream out;
  HostPlatform platform{folder.path() / "", out};
  Program program{platform};
  Session session{program.scene(), platform, out, [this] { program.Start(); }};
};

TEST_F(ProgramTest, AMenuIsToldInTheNumbersOfTheProgram) {
  EXPECT_EQ(Say("answer menu mnuDivider"), "error: there is no menu item \"mnuDivider\"\n");
  EXPECT_EQ(Say("start\nclick Quintara.cmdHelp"),
            "! show Quintara\nok\n! popup mnuHelp 13200 6680 -> -\nok\n");
}

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

// A name that two objects of a form shared would give another value than the dump does.
TEST_F(ProgramTest, EveryObjectIsReachedByItsName) {
  Say("start");
  for (const Form* form : program.scene().forms()) {
    EXPECT_EQ(Say("set " + std::string(form->name()) + ".Left 100"), "ok\n");
  }
  std::istringstream lines(Say("dump"));
  for (std::string line; std::getline(lines, line) && line != "ok";) {
    const std::string name = line.substr(0, line.find(" = "));
    EXPECT_EQ(Say("get " + name), line.substr(name.size() + 3) + "\nok\n") << line;
  }
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
