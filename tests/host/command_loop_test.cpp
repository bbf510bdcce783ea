#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

// What any line at all does is tried by fuzz/host_fuzz.cpp.
using CommandLoopTest = HostTest;

TEST_F(CommandLoopTest, WhatComesBeforeTheStart) {
  ExpectRefused("get Quintara.Loaded|set Quintara.Left 1|click Quintara.cmdHelp|advance 1|dump|time");
  EXPECT_EQ(Say("chance 0.5\nanswer box 6\nanswer menu mnuAbout\nstart"),
            "ok\nok\nok\n! show Quintara\nok\n");
  ExpectRefused("start");
  EXPECT_EQ(Say("quit\nget Quintara.Left"), "ok\n");
}

TEST_F(CommandLoopTest, LineEndsBlankLinesAndComments) {
  EXPECT_EQ(Say("\r\n  \t\r\n\n# start\r\n#\"\nstart\r\nget Quintara.Loaded\r\ntime"),
            "! show Quintara\nok\n-1\nok\n0\nok\n");
  EXPECT_EQ(Say(""), "");
  ExpectRefused("Start| #|get|get Quintara.Left 1|\"time\"|\"|dump a b|quit now");
  for (const char byte : {'\0', '\x7F', '\xC3', '\xFF'}) ExpectRefused({'t', byte});
}

TEST_F(CommandLoopTest, LongLines) {
  Start();
  const std::string start = "set Quintara.Caption \"";
  const std::string text(CommandLoop::longestLine - start.size() - 1, 'x');
  EXPECT_EQ(Say(start + text + "\""), "ok\n");
  EXPECT_EQ(form.Caption, text);
  // What is cut off must not make a line that would pass.
  ExpectRefused(start + "x" + text + "\"|" + start + text + "\"\r\r|" +
                std::string(CommandLoop::longestLine + 2, ' ') + "time");
  EXPECT_EQ(form.Caption, text);
  EXPECT_EQ(Say("#" + text + text + "\ntime"), "0\nok\n");
}

}  // namespace
}  // namespace quintara::host
