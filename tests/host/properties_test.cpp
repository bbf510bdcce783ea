#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

// What each kind of object tells in a dump, and in which order, is in the transcripts.
class PropertiesTest : public HostTest {
 protected:
  void SetUp() override { Start(); }
};

// What a dump prints can be asked for again line by line, and, where it can be written, set to the same. A
// name that two objects of a form shared would give another value than the dump does.
TEST_F(PropertiesTest, DumpGetAndSetAgree) {
  Choose("mnuMasters");
  for (const Form* each : program.scene().forms()) {
    EXPECT_EQ(Say("set " + std::string(each->name()) + ".Left 100"), "ok\n");
  }
  const std::string before = Say("dump");
  EXPECT_TRUE(before.starts_with("Quintara.Caption = \"Quintara\"\n"));
  EXPECT_TRUE(before.find("\nfrmMasters.Caption") < before.find("\nprojectile.Caption"))
      << "forms come in the order of their loading";
  EXPECT_NE(before.find("\n" + Say("dump frmMasters").substr(0, 1000)), std::string::npos);
  EXPECT_NE(
      before.find("\nAbout.SSPanel1.Caption = \"Quintara Version 1.0\"\nAbout.SSPanel1.Left = 720\n"
                  "About.SSPanel1.Top = 120\nAbout.SSPanel1.Width = 2775\nAbout.SSPanel1.Height = 495\n"),
      std::string::npos);
  std::istringstream lines(before);
  int written = 0;
  for (std::string line; std::getline(lines, line) && line != "ok";) {
    const std::string name = line.substr(0, line.find(" = "));
    const std::string value = line.substr(name.size() + 3);
    EXPECT_EQ(Get(name), value) << line;
    written += Say("set " + name + " " + value) == "ok\n" ? 1 : 0;
  }
  EXPECT_EQ(Say("dump"), before);
  EXPECT_GT(written, 1000);
}

TEST_F(PropertiesTest, WhatIsWrongIsRefusedAndChangesNothing) {
  Say("set frmTrajectory.Left 0\nset frmMasters.Left 0\nset Analysis.Left 0");
  program.masters().list.AddItem("Ada");
  const std::string before = Say("dump");
  ExpectRefused(
      "get Quintara|get .Left|get Quintara.|get Quintara.left|get quintara.Left|get Nobody.Left|"
      "get Quintara.nobody.Left|get Quintara.Label4.Value|get Quintara.Line1.X1|get Quintara.Line1(9).X1|"
      "get Quintara.Line1(-1).X1|get Quintara.Line1(x).X1|get Quintara.Line1(99999).X1|"
      "get Quintara.Label4(0).Left|get Quintara.Label4(-1).Left|get frmMasters.List1.List|"
      "get frmMasters.List1.List(1)|get frmMasters.List1.List(-1)|get frmMasters.List1.List(0|"
      "get frmMasters.List1.List()|get \"Quintara.Left\"");
  ExpectRefused(
      "set Quintara.Visible 0|set Quintara.Loaded 0|set frmMasters.List1.ListCount 0|"
      "set frmMasters.List1.List(0) \"a\"|set Analysis.rtbMath.SelLength 0|set Analysis.rtbMath.SelText "
      "\"a\"|"
      "set Quintara.HScroll1.Min 0|set Quintara.HScroll1.Max 10|set Quintara.HScroll1.SmallChange 1|"
      "set Quintara.HScroll1.LargeChange 3|set frmTrajectory.Slider1.Min 0|set Quintara.Label4.Caption Go|"
      "set Quintara.Label4.Left \"1\"|set Quintara.Label4.Visible 1|set Quintara.Label4.BackColor 255|"
      "set Quintara.HScroll1.Value 16|set Quintara.HScroll1.Value 0|set Quintara.HScroll1.Value 70000|"
      "set Quintara.VScroll2.Value 751|set Quintara.VScroll2.Value 249|set frmTrajectory.Slider1.Value 101|"
      "set Quintara.tmrShell.Interval -1|set Quintara.DrawWidth 0|set Quintara.Picture5.DrawWidth -1|"
      "set Quintara.DrawWidth 32768|set Quintara.ScaleMode 2|set Quintara.ScaleWidth 0|"
      "set Quintara.ScaleHeight -1|set Quintara.Picture4.Picture \"missing.bmp\"|"
      "set Quintara.Picture4.Picture valley|set Quintara.Label4.Nothing 1");
  EXPECT_EQ(Say("dump"), before);
}

TEST_F(PropertiesTest, ABitmapOfTheDataFolderIsLoaded) {
  std::filesystem::create_directory(folder.path() / "Graphics");
  std::string bitmap = "BM" + std::string(28, '\0');
  bitmap[18] = bitmap[22] = 8;
  folder.Put("Graphics/hill.bmp", bitmap);
  EXPECT_EQ(Say(R"(set Quintara.Picture4.Picture "Graphics\\hill.bmp")"), "ok\n");
  EXPECT_EQ(Get("Quintara.Picture4.Picture"), "\"Graphics\\\\hill.bmp\"");
  EXPECT_TRUE(form.scope.Picture.Get().isFile);
}

TEST_F(PropertiesTest, OnlyAssigningTouchesAForm) {
  EXPECT_EQ(Get("About.Visible"), "0");
  ExpectRefused(
      "get About.Left|get About.cmdOK.Caption|dump About|dots About|set About.Nothing 1|"
      "set About.cmdOK.Left x|set About.nobody.Left 1");
  EXPECT_EQ(Get("About.Loaded"), "0");
  EXPECT_EQ(Say("set About.Left 7"), "ok\n");
  EXPECT_EQ(Get("About.Loaded") + Get("About.Visible") + Get("About.Left"), "-107");
}

}  // namespace
}  // namespace quintara::host
