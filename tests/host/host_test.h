#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/command_loop.h"
#include "program/program.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {

// A host with the game. Say hands it lines and gives what it prints.
class HostTest : public ::testing::Test {
 protected:
  std::string Say(const std::string& lines) {
    out.str("");
    std::istringstream in(lines);
    loop.Run(in);
    return out.str();
  }
  void Start() { ASSERT_EQ(Say("start"), "! show Quintara\nok\n"); }
  // As it is printed.
  std::string Get(const std::string& property) {
    const std::string reply = Say("get " + property);
    return reply.substr(0, reply.find('\n'));
  }
  // Opens a document or another window.
  void Choose(const std::string& item) {
    ASSERT_EQ(Say("answer menu " + item + "\nclick Quintara.cmdHelp").substr(0, 11), "ok\n! popup ");
  }
  // Each of these commands, with a bar between two, is refused and prints nothing but that.
  void ExpectRefused(const std::string& commands) {
    std::istringstream stream(commands);
    for (std::string line; std::getline(stream, line, '|');) {
      const std::string reply = Say(line);
      EXPECT_TRUE(reply.starts_with("error: ") && reply.find('\n') == reply.size() - 1) << line;
    }
  }

  TemporaryFolder folder;
  std::ostringstream out;
  HostPlatform platform{folder.path() / "", out};
  Program program{platform};
  QuintaraForm& form = program.quintara();
  CommandLoop loop{program.scene(), platform, out, [this] { program.Start(); }};
};

}  // namespace quintara::host
