#include <iterator>
#include <random>
#include <vector>

#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

using SessionTest = HostTest;

bool IsClosing(const std::string& line) {
  return line == "ok" || line == "ignored" || line.starts_with("error: ");
}

int ClosingLines(const std::string& reply) {
  std::istringstream lines(reply);
  int count = 0;
  for (std::string line; std::getline(lines, line);) count += IsClosing(line) ? 1 : 0;
  return count;
}

std::vector<std::string> Words(const std::string& blankBetween) {
  std::istringstream stream(blankBetween);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST_F(SessionTest, WhatComesBeforeTheStart) {
  for (const char* line :
       {"get Trial.Loaded", "set Trial.Left 1", "click Trial.cmdGo", "advance 1", "dump", "time"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
  EXPECT_EQ(Say("chance 0.5\nanswer box 6\nanswer menu mnuOne\nstart"), "ok\nok\nok\n! show Trial\nok\n");
  EXPECT_TRUE(IsRefusal(Say("start")));
  EXPECT_EQ(Say("quit\nget Trial.Left"), "ok\n");
}

TEST_F(SessionTest, LineEndsBlankLinesAndComments) {
  EXPECT_EQ(Say("\r\n  \t\r\n\n# start\r\n#\"\nstart\r\nget Trial.Top\r\ntime"),
            "! show Trial\nok\n0\nok\n0\nok\n");
  EXPECT_EQ(Say(""), "");
  for (const char* line :
       {"Start", " #", "get", "get Trial.Left 1", "\"time\"", "\"", "dump a b", "quit now"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(SessionTest, LongLines) {
  Start();
  const std::string frame = "set Trial.lblLog.Caption \"\"";
  const std::string text(Session::longestLine - frame.size(), 'x');
  EXPECT_EQ(Say("set Trial.lblLog.Caption \"" + text + "\""), "ok\n");
  EXPECT_EQ(Noted(), text);
  EXPECT_TRUE(IsRefusal(Say("set Trial.lblLog.Caption \"x" + text + "\"")));
  EXPECT_EQ(Noted(), "");
  // What is cut off must not make a line that would pass.
  EXPECT_TRUE(IsRefusal(Say("set Trial.lblLog.Caption \"" + text + "\"\r\r")));
  EXPECT_TRUE(IsRefusal(Say(std::string(Session::longestLine + 2, ' ') + "time")));
  EXPECT_EQ(Say("#" + text + text + "\ntime"), "0\nok\n");
}

TEST_F(SessionTest, RandomBytesAreAnsweredLineByLine) {
  Start();
  std::mt19937 random(20);
  for (int i = 0; i < 5000; ++i) {
    std::string line;
    for (auto left = random() % 60; left > 0; --left) line += static_cast<char>(random() % 256);
    std::erase(line, '\n');
    const std::string words = line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0));
    const bool skipped = words.starts_with('#') || words.find_first_not_of(" \t") == std::string::npos;
    EXPECT_EQ(ClosingLines(Say(line)), skipped ? 0 : 1);
  }
}

TEST_F(SessionTest, RandomWordsAreAnsweredLineByLine) {
  Start();
  std::vector<std::string> names{"Trial", "Side", "Side.lblLog", "Nobody", "Trial.nobody(1)"};
  for (const Object* object : trial.objects()) names.push_back("Trial." + FullName(*object));
  const auto commands = Words(
      "get set set set click move scroll arrow trough type key select close chance "
      "answer dots dump time start # \" Get");
  const auto properties = Words(
      "Caption Left Width Visible Picture X1 Enabled BackColor Value Interval Text "
      "ListCount List(1) List(32767) TextRTF SelText Loaded DrawWidth ScaleMode "
      "ScaleWidth ScaleHeight Min Nothing");
  const auto values = Words(
      "0 -1 1 3 10 32767 32768 2147483647 -2147483648 0.5 1e38 1e39 nan min max box menu "
      "- mnuOne mnuBreak 0x000000FF 0x \"\" \"ab\\n\" \" ( . \\ \"\\q\" "
      "\"{\\\\rtf1{\" \"\xFF\xC3\" 999");
  std::mt19937 random(21);
  const auto pick = [&random](const std::vector<std::string>& words) {
    return words[random() % words.size()];
  };
  for (int i = 0; i < 15000; ++i) {
    std::string line = pick(commands) + " " + pick(names);
    if (random() % 2 == 0) line += "." + pick(properties);
    for (auto left = random() % 3; left > 0; --left) line += " " + pick(values);
    if (random() % 8 == 0) line = "advance " + std::to_string(random() % 2000);
    if (line.starts_with("close Trial")) continue;
    const std::string reply = Say(line);
    EXPECT_EQ(ClosingLines(reply), line.starts_with('#') ? 0 : 1) << line << '\n' << reply;
  }
  EXPECT_FALSE(scene.ended());
}

}  // namespace
}  // namespace quintara::host
