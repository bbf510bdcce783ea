#include <fstream>

#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

using PropertiesTest = HostTest;

class DumpTest : public HostTest {
 protected:
  // The properties that a dump tells of an object, in their order.
  std::string Dumped(const std::string& object) {
    std::istringstream lines(Say("dump Trial"));
    std::string names;
    for (std::string line; std::getline(lines, line);) {
      const std::string name = line.substr(0, line.find(" = "));
      const std::size_t dot = name.rfind('.');
      if (dot != std::string::npos && name.substr(0, dot) == object) names += name.substr(dot + 1) + " ";
    }
    return names;
  }
};

TEST_F(DumpTest, EveryKindHasItsProperties) {
  Start();
  EXPECT_EQ(Dumped("Trial"), "Caption Left Top Width Height Visible ");
  EXPECT_EQ(Dumped("Trial.picBoard"), "Left Top Width Height Visible Picture ");
  EXPECT_EQ(Dumped("Trial.lblLog"), "Caption Visible BackColor ForeColor Left Top Width Height ");
  EXPECT_EQ(Dumped("Trial.Line1(0)"), "X1 Y1 X2 Y2 Visible BorderColor ");
  EXPECT_EQ(Dumped("Trial.shpBall"), "Left Top Width Height Visible BorderColor ");
  EXPECT_EQ(Dumped("Trial.imgGun"), "Left Top Width Height Visible Enabled ");
  EXPECT_EQ(Dumped("Trial.cmdGo"), "Caption Left Top Width Height Enabled Visible ");
  EXPECT_EQ(Dumped("Trial.cmdAsk"), "Caption Left Top Width Height Enabled Visible ");
  EXPECT_EQ(Dumped("Trial.pnlTop"), "Caption Left Top Width Height ");
  EXPECT_EQ(Dumped("Trial.hsbTime"), "Value Enabled Min Max SmallChange LargeChange ");
  EXPECT_EQ(Dumped("Trial.vsbLay"), "Value Enabled Min Max SmallChange LargeChange ");
  EXPECT_EQ(Dumped("Trial.sldDrag"), "Value Min Max ");
  EXPECT_EQ(Dumped("Trial.tmrFast"), "Enabled Interval ");
  EXPECT_EQ(Dumped("Trial.txtName"), "Text Visible ");
  EXPECT_EQ(Dumped("Trial.lstNames"), "ListCount List(0) List(1) ");
  EXPECT_EQ(Dumped("Trial.rtbText"), "Left Top Width Height Visible SelLength ");
  EXPECT_EQ(Dumped("Trial.mnuOne"), "Caption Visible ");
}

TEST_F(DumpTest, FormsComeInTheOrderOfLoadingAndObjectsInThatOfTheirTable) {
  Start();
  const std::string both = Say("click Trial.cmdGo\ndump");
  const std::string ofSide = R"(Side.Caption = "Side"
Side.Left = 0
Side.Top = 0
Side.Width = 1000
Side.Height = 1000
Side.Visible = -1
Side.lblLog.Caption = "loaded;"
Side.lblLog.Visible = -1
Side.lblLog.BackColor = 0x8000000F
Side.lblLog.ForeColor = 0x80000012
Side.lblLog.Left = 0
Side.lblLog.Top = 0
Side.lblLog.Width = 500
Side.lblLog.Height = 200
ok
)";
  EXPECT_TRUE(both.starts_with("! show Side\nok\nTrial.Caption = \"Trial\"\n") && both.ends_with(ofSide))
      << both;
  EXPECT_EQ(Say("dump Side"), ofSide);
  std::size_t last = 0;
  for (const char* object :
       {"picBoard", "lblLog", "Line1(0)", "Line1(1)", "Line1(2)", "shpBall", "mnuElse"}) {
    const std::size_t at = both.find("Trial." + std::string(object) + ".");
    EXPECT_TRUE(at != std::string::npos && at > last) << object;
    last = at;
  }
}

// What a dump prints can be asked for again line by line, and, where it can be written, set to the same.
TEST_F(PropertiesTest, DumpGetAndSetAgree) {
  Start();
  const std::string before = Say("dump");
  std::istringstream lines(before);
  int written = 0;
  for (std::string line; std::getline(lines, line) && line != "ok";) {
    const std::string name = line.substr(0, line.find(" = "));
    const std::string value = line.substr(name.size() + 3);
    EXPECT_EQ(Say("get " + name), value + "\nok\n");
    written += Say("set " + name + " " + value) == "ok\n" ? 1 : 0;
  }
  EXPECT_EQ(Say("dump"), before);
  EXPECT_GT(written, 80);
}

TEST_F(PropertiesTest, AssignmentsAreReadBack) {
  Start();
  for (const auto& [name, value] : std::initializer_list<std::pair<std::string, std::string>>{
           {"Trial.Caption", R"("a \"b\"\\\r\n\tc")"},
           {"Trial.Left", "-0.25"},
           {"Trial.DrawWidth", "32767"},
           {"Trial.picBoard.DrawWidth", "1"},
           {"Trial.picBoard.Picture", "\"\""},
           {"Trial.lblLog.ForeColor", "0x00FF0A01"},
           {"Trial.Line1(2).X2", "83.9243"},
           {"Trial.imgGun.Enabled", "0"},
           {"Trial.vsbLay.Value", "750"},
           {"Trial.sldDrag.Value", "-5"},
           {"Trial.tmrFast.Interval", "2147483647"},
           {"Trial.tmrFast.Enabled", "-1"},
           {"Trial.txtName.Text", "\"\xC3\xA9\""},
           {"Trial.rtbText.TextRTF", R"("{\\rtf1 b}")"},
           {"Trial.mnuOne.Visible", "0"},
           {"Trial.mnuOne.Caption", "\"1\""}}) {
    EXPECT_EQ(Say("set " + name + " " + value), "ok\n") << name;
    EXPECT_EQ(Say("get " + name), value + "\nok\n");
  }
}

TEST_F(PropertiesTest, WhatIsWrongIsRefusedAndChangesNothing) {
  Start();
  const std::string before = Say("dump");
  for (const char* line : {"get Trial",
                           "get .Left",
                           "get Trial.",
                           "get Trial.left",
                           "get trial.Left",
                           "get Nobody.Left",
                           "get Trial.nobody.Left",
                           "get Trial.lblLog.Value",
                           "get Trial.Line1.X1",
                           "get Trial.Line1(3).X1",
                           "get Trial.Line1(-1).X1",
                           "get Trial.Line1(x).X1",
                           "get Trial.Line1(99999).X1",
                           "get Trial.lblLog(0).Left",
                           "get Trial.lblLog(-1).Left",
                           "get Trial.lstNames.List",
                           "get Trial.lstNames.List(2)",
                           "get Trial.lstNames.List(-1)",
                           "get Trial.lstNames.List(0",
                           "get Trial.lstNames.List()",
                           "get \"Trial.Left\"",
                           "set Trial.Visible 0",
                           "set Trial.Loaded 0",
                           "set Trial.lstNames.ListCount 0",
                           "set Trial.lstNames.List(0) \"a\"",
                           "set Trial.rtbText.SelLength 0",
                           "set Trial.rtbText.SelText \"a\"",
                           "set Trial.hsbTime.Min 0",
                           "set Trial.hsbTime.Max 10",
                           "set Trial.hsbTime.SmallChange 1",
                           "set Trial.hsbTime.LargeChange 3",
                           "set Trial.sldDrag.Min 0",
                           "set Trial.lblLog.Caption Go",
                           "set Trial.lblLog.Left \"1\"",
                           "set Trial.lblLog.Visible 1",
                           "set Trial.lblLog.BackColor 255",
                           "set Trial.hsbTime.Value 11",
                           "set Trial.hsbTime.Value -1",
                           "set Trial.hsbTime.Value 70000",
                           "set Trial.vsbLay.Value 751",
                           "set Trial.vsbLay.Value 249",
                           "set Trial.sldDrag.Value 6",
                           "set Trial.tmrFast.Interval -1",
                           "set Trial.DrawWidth 0",
                           "set Trial.picBoard.DrawWidth -1",
                           "set Trial.DrawWidth 32768",
                           "set Trial.ScaleMode 2",
                           "set Trial.ScaleWidth 0",
                           "set Trial.ScaleHeight -1",
                           "set Trial.picBoard.Picture \"missing.bmp\"",
                           "set Trial.picBoard.Picture valley",
                           "set Trial.lblLog.Nothing 1"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
  EXPECT_EQ(Say("dump"), before);
}

TEST_F(PropertiesTest, AScaleCountsAnewAndMovesNothing) {
  Start();
  EXPECT_EQ(Say("set Trial.ScaleMode 3\nget Trial.cmdAsk.Width\nset Trial.ScaleHeight 100\n"
                "get Trial.ScaleMode\nget Trial.ScaleWidth\nget Trial.cmdAsk.Top\nget Trial.ScaleHeight"),
            "ok\n40\nok\nok\n0\nok\n200\nok\n50\nok\n100\nok\n");
  EXPECT_TRUE(IsRefusal(Say("set Trial.Width 90\nset Trial.ScaleWidth 10").substr(3)));
}

TEST_F(PropertiesTest, ABitmapOfTheDataFolderIsLoaded) {
  Start();
  std::filesystem::create_directory(folder.path() / "Graphics");
  std::string bitmap = "BM" + std::string(28, '\0');
  bitmap[18] = bitmap[22] = 8;
  std::ofstream(folder.path() / "Graphics" / "hill.bmp", std::ios::binary) << bitmap;
  EXPECT_EQ(Say(R"(set Trial.picBoard.Picture "Graphics\\hill.bmp")"), "ok\n");
  EXPECT_EQ(Say("get Trial.picBoard.Picture"), "\"Graphics\\\\hill.bmp\"\nok\n");
  EXPECT_TRUE(trial.picBoard.Picture.Get().isFile);
}

TEST_F(PropertiesTest, OnlyAssigningTouchesAForm) {
  Start();
  EXPECT_EQ(Say("get Side.Loaded\nget Side.Visible"), "0\nok\n0\nok\n");
  for (const char* line : {"get Side.Left", "get Side.lblLog.Caption", "dump Side", "dots Side",
                           "set Side.Nothing 1", "set Side.lblLog.Left x", "set Side.nobody.Left 1"}) {
    EXPECT_TRUE(IsRefusal(Say(line))) << line;
  }
  EXPECT_EQ(Say("get Side.Loaded"), "0\nok\n");
  EXPECT_EQ(Say("set Side.Left 7"), "ok\n");
  EXPECT_EQ(Say("get Side.Loaded\nget Side.Visible\nget Side.lblLog.Caption\nget Side.Left"),
            "-1\nok\n0\nok\n\"loaded;\"\nok\n7\nok\n");
}

}  // namespace
}  // namespace quintara::host
