#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

class CommandsTest : public HostTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(CommandsTest, ClicksAndWhatTheyDoOutside) {
  EXPECT_EQ(Say("click Trial.imgGun"),
            "! sound Sounds\\bang.wav\n! beep\n! clipboard \"a\\r\\n\\\"b\\\"\"\nok\n");
  EXPECT_EQ(Say("click Trial.imgPlain"), "ok\n");
  EXPECT_EQ(Say("click Trial.cmdGo\nclick Trial.cmdGo"), "! show Side\nok\n! show Side\nok\n");
  EXPECT_EQ(Say("set Trial.imgGun.Enabled 0\nclick Trial.imgGun"), "ok\nignored\n");
  EXPECT_EQ(Say("set Trial.picBoard.Visible 0\nclick Trial.imgPlain"), "ok\nignored\n");
  for (const char* name :
       {"Trial", "Trial.lblLog", "Trial.mnuOne", "Trial.tmrFast", "Trial.nobody", "Side"}) {
    EXPECT_TRUE(IsRefusal(Say(std::string("click ") + name))) << name;
  }
}

TEST_F(CommandsTest, ThePointerReachesWhatTakesTheMouse) {
  EXPECT_EQ(Say("move Trial.imgGun\nmove Trial.shpBall\nmove Trial.Line1(0)\nset Trial.imgGun.Enabled 0\n"
                "move Trial.imgGun\nmove Trial"),
            "ok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Noted(), "gun;board;board;board;");
  EXPECT_EQ(Say("move Trial.Line1(1)\nmove Side.lblLog"), "ignored\nignored\n");
  EXPECT_TRUE(IsRefusal(Say("move Trial.tmrFast")));
  EXPECT_TRUE(IsRefusal(Say("move Trial.mnuOne")));
}

TEST_F(CommandsTest, BarsAndSliders) {
  EXPECT_EQ(Say("scroll Trial.hsbTime 7\nscroll Trial.hsbTime 7\narrow Trial.hsbTime max\n"
                "trough Trial.hsbTime max\ntrough Trial.hsbTime max\narrow Trial.hsbTime max"),
            "ok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Noted(), "time7;time8;time10;");
  EXPECT_EQ(Say("arrow Trial.vsbLay min\nget Trial.vsbLay.Value"), "ok\n310\nok\n");
  EXPECT_EQ(Say("scroll Trial.sldDrag 0\ntrough Trial.sldDrag min\ntrough Trial.sldDrag min\n"
                "trough Trial.sldDrag min\nset Trial.sldDrag.Value 2\nset Trial.hsbTime.Value 10"),
            "ok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Noted(), "drag0;drag-4;drag-5;");
  EXPECT_EQ(Say("set Trial.hsbTime.Enabled 0\narrow Trial.hsbTime min"), "ok\nignored\n");
  for (const char* line : {"scroll Trial.hsbTime 11", "scroll Trial.hsbTime x", "scroll Trial.sldDrag -6",
                           "scroll Trial.cmdGo 1", "arrow Trial.sldDrag min", "arrow Trial.hsbTime up",
                           "trough Trial.cmdGo min", "trough Trial.hsbTime \"min\""}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(CommandsTest, Keys) {
  EXPECT_EQ(
      Say("type Trial.txtName \"a\xC3\xA9\"\nkey Trial.txtName 66\nkey Trial.txtName 9\nkey Trial.txtName 8\n"
          "get Trial.txtName.Text"),
      "ok\nok\nok\nok\n\"a\xC3\xA9\"\nok\n");
  EXPECT_EQ(Noted(), "97;233;66;9;8;");
  EXPECT_EQ(Say("type Trial.txtName \"b\\rcd\"\nget Trial.txtName.Text"),
            "ok\n\"a\xC3\xA9"
            "b\"\nok\n");
  EXPECT_EQ(Noted(), "98;13;");
  EXPECT_EQ(Say("type Trial.txtName \"b\"\ntype Trial.txtName \"\"\nkey Trial.txtName 65"),
            "ignored\nignored\nignored\n");
  for (const char* line : {"type Trial.txtName abc", "type Trial.lblLog \"a\"", "key Trial.txtName -1",
                           "key Trial.txtName 1114112", "key Trial.txtName A", "key Trial.cmdGo 65"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(CommandsTest, AHandlerThatFailsDoesNotEndTheHost) {
  EXPECT_TRUE(IsRefusal(Say("key Trial.txtName 33")));
  EXPECT_EQ(Say("key Trial.txtName 65\nget Trial.txtName.Text"), "ok\n\"A\"\nok\n");
}

TEST_F(CommandsTest, Selections) {
  Say("set Trial.rtbText.TextRTF \"h\xC3\xA9llo\"");
  EXPECT_EQ(Say("select Trial.rtbText 1 2\nget Trial.rtbText.SelText\nget Trial.rtbText.SelLength"),
            "ok\n\"\xC3\xA9l\"\nok\n2\nok\n");
  EXPECT_EQ(Say("select Trial.rtbText 4 2147483647\nselect Trial.rtbText 9 1\nget Trial.rtbText.SelText"),
            "ok\nok\n\"\"\nok\n");
  EXPECT_EQ(Noted(), "sel2;sel1;sel0;");
  EXPECT_TRUE(IsRefusal(Say("select Trial.rtbText -1 1")));
  EXPECT_TRUE(IsRefusal(Say("select Trial.rtbText 1 -1")));
  EXPECT_TRUE(IsRefusal(Say("select Trial.txtName 0 1")));
  EXPECT_EQ(Say("set Trial.rtbText.Visible 0\nselect Trial.rtbText 0 1"), "ok\nignored\n");
}

TEST_F(CommandsTest, TimeTakesTheShorterIntervalFirst) {
  Say("set Trial.tmrSlow.Enabled -1\nset Trial.tmrFast.Enabled -1");
  EXPECT_EQ(Say("advance 1000\ntime\nadvance 0\ntime"), "ok\n1000\nok\nok\n1000\nok\n");
  EXPECT_EQ(Noted(), "f;f;f;f;f;f;f;f;f;f;s;");
  Say("set Trial.tmrFast.Enabled 0\nset Trial.tmrSlow.Enabled 0");
  EXPECT_EQ(Say("advance 2147483647\nadvance 2147483647\ntime"), "ok\nok\n4294968294\nok\n");
  for (const char* line : {"advance -1", "advance 2147483648", "advance", "advance 1.5", "time 1"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(CommandsTest, Boxes) {
  EXPECT_EQ(Say("click Trial.cmdAsk"),
            "! box \"Sure?\" 52 \"Ask\" -> 7\n! box \"So.\" 48 \"Tell\" -> 1\nok\n");
  Say("answer box 6\nanswer box 3\nclick Trial.cmdAsk\nclick Trial.cmdAsk");
  EXPECT_EQ(Noted(), "7;1;6;3;7;1;");
  for (const char* line : {"answer box", "answer box x", "answer door 1", "answer box 2147483648"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(CommandsTest, PopupMenus) {
  EXPECT_EQ(Say("answer menu mnuOne\nclick Trial.cmdMenu\nclick Trial.cmdMenu"),
            "ok\n! popup mnuMain 1320 668 -> mnuOne\nok\n! popup mnuMain 1320 668 -> -\nok\n");
  EXPECT_EQ(Noted(), "one;chosen;dismissed;");
  // Neither an item of another menu nor one that is off can be chosen, and each uses its answer up.
  Say("answer menu mnuElse\nanswer menu mnuOff\nanswer menu -\nanswer menu mnuOne");
  EXPECT_EQ(Say("set Trial.ScaleMode 3\nclick Trial.cmdMenu"), "ok\n! popup mnuMain 1320 668 -> -\nok\n");
  Say("click Trial.cmdMenu\nclick Trial.cmdMenu\nclick Trial.cmdMenu");
  EXPECT_EQ(Noted(), "dismissed;dismissed;dismissed;one;chosen;");
  for (const char* item : {"mnuMain", "mnuBreak", "mnuNone", "cmdGo", "\"mnuOne\"", "\"-\"", ""}) {
    EXPECT_TRUE(IsRefusal(Say(std::string("answer menu ") + item))) << item;
  }
}

TEST_F(CommandsTest, ChancesAndMarks) {
  EXPECT_TRUE(IsRefusal(Say("chance 0.75 1")));
  EXPECT_EQ(Say("chance 0.25 0\nclick Trial.cmdGo\nclick Trial.cmdGo"),
            "ok\n! show Side\nok\n! show Side\nok\n");
  EXPECT_EQ(Noted(), "0.25;0;");
  EXPECT_EQ(Say("dots Trial.picBoard"),
            "10 20.5 0x000000FF 1\n30 40 0x00123456 3\n10 20.5 0x000000FF 3\n30 40 0x00123456 3\nok\n");
  EXPECT_EQ(Say("dots Trial"), "ok\n");
  for (const char* line :
       {"chance", "chance -0.1", "chance x", "chance \"0\"", "chance nan", "dots Trial.lblLog"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
}

TEST_F(CommandsTest, ClosingTheLastFormEndsTheProgram) {
  EXPECT_EQ(Say("close Side"), "ignored\n");
  EXPECT_TRUE(IsRefusal(Say("close Trial.cmdGo")));
  Say("click Trial.cmdGo");
  EXPECT_EQ(Say("close Side\nget Side.Loaded"), "! unload Side\nok\n0\nok\n");
  Say("set Side.Left 1");
  EXPECT_EQ(Say("close Side"), "ignored\n");
  EXPECT_EQ(Say("close Trial"), "! unload Side\n! unload Trial\n! end\nok\n");
  for (const char* line :
       {"start", "get Trial.Loaded", "dump", "time", "chance 0", "answer box 1", "nonsense"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
  EXPECT_EQ(Say("quit"), "ok\n");
}

}  // namespace
}  // namespace quintara::host
