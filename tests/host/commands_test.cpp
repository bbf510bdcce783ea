#include <iostream>

#include "tests/host/host_test.h"

namespace quintara::host {
namespace {

class CommandsTest : public HostTest {
 protected:
  void SetUp() override {
    Start();
    Say("set Quintara.Picture8.Visible -1");
  }
};

TEST_F(CommandsTest, ClicksAndThePointerReachWhatTakesThem) {
  EXPECT_EQ(Say("click Quintara.Image7"), "! sound biggun.wav\nok\n");
  Say("move Quintara.Image7");
  EXPECT_EQ(Get("Quintara.Shape5.BorderColor"), "0x00FFFFFF");
  EXPECT_EQ(Say("set Quintara.Image7.Enabled 0\nclick Quintara.Image7\nmove Quintara.Image7"),
            "ok\nignored\nok\n");
  EXPECT_EQ(Get("Quintara.Shape5.BorderColor"), "0x00808080") << "what lies behind gets the pointer";
  EXPECT_EQ(Say("move Quintara\nmove Quintara.Picture5\nmove About.cmdOK\nclick About.cmdOK"),
            "ok\nignored\nignored\nignored\n");
  ExpectRefused(
      "click Quintara|click Quintara.Label4|click Quintara.mnuAbout|click Quintara.tmrShell|click "
      "Quintara.no|"
      "click About|move Quintara.tmrShell|move Quintara.mnuAbout");
}

TEST_F(CommandsTest, BarsAndSliders) {
  std::string values;
  form.flightTimeBar.Change.Bind([&] { values += std::to_string(form.flightTimeBar.Value) + " "; });
  EXPECT_EQ(Say("scroll Quintara.HScroll1 7\nscroll Quintara.HScroll1 7\narrow Quintara.HScroll1 max\n"
                "trough Quintara.HScroll1 min\nscroll Quintara.HScroll1 15\narrow Quintara.HScroll1 max"),
            "ok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(values, "7 8 7 15 ");
  EXPECT_EQ(Say("arrow Quintara.VScroll2 min\nset Quintara.HScroll1.Enabled 0\narrow Quintara.HScroll1 min"),
            "ok\nok\nignored\n");
  EXPECT_EQ(Get("Quintara.VScroll2.Value"), "260");
  Choose("mnuPhysics");
  Say("click Analysis.cmdTrajectory\nscroll frmTrajectory.Slider1 3\ntrough frmTrajectory.Slider1 max");
  EXPECT_EQ(Get("frmTrajectory.Slider1.Value"), "8");
  ExpectRefused(
      "scroll Quintara.HScroll1 16|scroll Quintara.HScroll1 x|scroll frmTrajectory.Slider1 -1|"
      "scroll Quintara.cmdHelp 1|arrow frmTrajectory.Slider1 min|arrow Quintara.HScroll1 up|"
      "trough Quintara.cmdHelp min|trough Quintara.HScroll1 \"min\"");
}

TEST_F(CommandsTest, Keys) {
  Choose("mnuMasters");
  EXPECT_EQ(Say("type frmMasters.Text1 \"a\""), "ignored\n");
  Say("set frmMasters.Picture1.Visible -1");
  EXPECT_EQ(Say("type frmMasters.Text1 \"a\xC3\xA9\"\nkey frmMasters.Text1 66\nkey frmMasters.Text1 9\n"
                "key frmMasters.Text1 8"),
            "ok\nok\nok\nok\n");
  EXPECT_EQ(Get("frmMasters.Text1.Text"), "\"a\xC3\xA9\"");
  EXPECT_EQ(Say("type frmMasters.Text1 \"b\\rcd\"\nkey frmMasters.Text1 65\ntype frmMasters.Text1 \"\""),
            "! sound gong.wav\nok\nignored\nignored\n")
      << "Enter hides the box, and the rest is lost";
  EXPECT_EQ(Get("frmMasters.Text1.Text"), "\"a\u00E9b\"");
  ExpectRefused(
      "type frmMasters.Text1 abc|type Quintara.Label4 \"a\"|key frmMasters.Text1 -1|key frmMasters.Text1 A|"
      "key frmMasters.Text1 1114112|key Quintara.cmdHelp 65");
}

TEST_F(CommandsTest, TheFirstWordThatIsWrongIsTold) {
  for (const auto& [line, why] : std::initializer_list<std::pair<std::string, std::string>>{
           {"select Quintara.cmdHelp -1 x", "the object is no rich text box"},
           {"select Analysis.rtbMath -1 x", "the number is negative"},
           {"select Analysis.rtbMath 1 x", "a whole number is expected"},
           {"set Nobody.Left 1", "there is no form \"Nobody\""},
           {"set Quintara.Label4.Left x", "a number is expected"},
           {"trough Quintara.cmdHelp up", "min or max is expected"},
           {"trough Quintara.cmdHelp min", "the object is no scroll bar or slider"},
           {"scroll Quintara.HScroll1 99", "the value lies outside Min and Max"},
           {"answer door \"", "a text has no closing quote"},
           {"answer door x", "box or menu is expected"},
           {"chance 2 x", "a chance is at least 0 and below 1"},
           {"dump nobody.x", "there is no form \"nobody.x\""}}) {
    EXPECT_EQ(Say(line), "error: " + why + "\n") << line;
  }
}

TEST_F(CommandsTest, AFaultOfTheProgramEndsTheHostInOrder) {
  form.searchButton.Click.Bind([this] { form.rangeNumbers(40).Visible = true; });
  EXPECT_EXIT(Say("click Quintara.cmdSearch"), testing::ExitedWithCode(3), "");
  const auto fail = [this] {
    HostPlatform(folder.path(), std::cerr).FaultFound("Label3(40) does not exist");
  };
  EXPECT_EXIT(fail(), testing::ExitedWithCode(3), "error: Label3\\(40\\) does not exist");
}

TEST_F(CommandsTest, BoxesTakeTheAnswersInTheirOrder) {
  Say("answer box 6\nanswer box 3");
  for (const char* answer : {"6", "3", "1"}) {
    const std::string reply = Say("answer menu mnuUninstall\nclick Quintara.cmdHelp");
    EXPECT_NE(reply.find("! box \"To uninstall Quintara and all it's a"), std::string::npos);
    EXPECT_TRUE(reply.ends_with(" 48 \"Uninstall Quintara\" -> " + std::string(answer) + "\nok\n")) << reply;
  }
  Choose("mnuMasters");
  program.masters().list.AddItem("Ada");
  EXPECT_EQ(Say("click frmMasters.cmdRemove"),
            "! box \"Are you sure you want to erase all names from the Quintara Master list?\" 52 "
            "\"Removing names\" -> 7\nok\n");
  EXPECT_EQ(Get("frmMasters.List1.ListCount"), "1") << "a script that forgot an answer destroys nothing";
  ExpectRefused("answer box|answer box x|answer door 1|answer box 2147483648");
}

TEST_F(CommandsTest, PopupMenus) {
  // The menu opens in the numbers of the program, whatever the scale.
  EXPECT_EQ(
      Say("answer menu mnuAbout\nset Quintara.ScaleMode 3\nclick Quintara.cmdHelp\nclick Quintara.cmdHelp"),
      "ok\nok\n! popup mnuHelp 13200 6680 -> mnuAbout\n! show About\nok\n"
      "! popup mnuHelp 13200 6680 -> -\nok\n");
  // What is hidden can't be chosen, and uses its answer up.
  Say("answer menu mnuAbout\nanswer menu -\nset Quintara.mnuAbout.Visible 0");
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(Say("click Quintara.cmdHelp"), "! popup mnuHelp 13200 6680 -> -\nok\n");
  ExpectRefused(
      "answer menu mnuHelp|answer menu mnuDivider|answer menu mnuNone|answer menu cmdHelp|"
      "answer menu \"mnuAbout\"|answer menu \"-\"|answer menu");
}

TEST_F(CommandsTest, ClosingTheLastFormEndsTheProgram) {
  EXPECT_EQ(Say("close About"), "ignored\n");
  ExpectRefused("close Quintara.cmdHelp");
  Choose("mnuAbout");
  EXPECT_EQ(Say("close About"), "! unload About\nok\n");
  EXPECT_EQ(Get("About.Loaded"), "0");
  EXPECT_EQ(Say("set About.Left 1\nclose About"), "ok\nignored\n") << "loaded, but not shown";
  EXPECT_EQ(Say("close Quintara"), "! unload About\n! unload Quintara\n! end\nok\n");
  ExpectRefused("start|get Quintara.Loaded|dump|time|chance 0|answer box 1|nonsense");
  EXPECT_EQ(Say("quit"), "ok\n");
}

}  // namespace
}  // namespace quintara::host
