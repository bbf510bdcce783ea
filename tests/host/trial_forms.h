#pragma once

#include <string>

#include "scene/controls.h"
#include "scene/numbers.h"
#include "scene/scene.h"

// Two small forms with an object of every kind, whose handlers tell of themselves.

namespace quintara {

class SideForm : public Form {
 public:
  Label lblLog{*this, "lblLog", {0, 0, 500, 200}};

  explicit SideForm(Scene& scene)
      : Form(scene, "Side", {.caption = "Side", .clientWidth = 910, .clientHeight = 625}) {
    Bind(Load, &SideForm::Form_Load);
  }

 private:
  void Form_Load() { lblLog.Caption = "loaded;"; }
};

class TrialForm : public Form {
 public:
  PictureBox picBoard{*this, "picBoard", {0, 0, 1500, 900}, {.picture = "valley", .foreColor = 0x0000FF}};
  Label lblLog{picBoard, "lblLog", {10, 20, 300.5, 40}};
  ControlArray<Line> Line1{*this, "Line1"};
  Line Line1_0{picBoard, Line1.At(0), {0, 60, 300, 60}};
  Shape shpBall{picBoard, "shpBall", {30, 30, 60, 60}};
  Image imgGun{picBoard, "imgGun", {100, 100, 240, 240}, {}};
  Image imgPlain{picBoard, "imgPlain", {400, 100, 240, 240}, {}};
  CommandButton cmdGo{*this, "cmdGo", {0, 1000, 600, 300}, {.caption = "Go"}};
  CommandButton cmdMenu{*this, "cmdMenu", {0, 1000, 600, 300}, {.caption = "Menu"}};
  SSCommand cmdAsk{*this, "cmdAsk", {700, 1000, 600, 300}, {.caption = "Ask"}};
  SSPanel pnlTop{*this, "pnlTop", {700, 1400, 600, 300}, {.caption = "Top"}};
  HScrollBar hsbTime{*this, "hsbTime", {0, 1400, 600, 200}, {0, 10, 1, 3, 5}};
  VScrollBar vsbLay{*this, "vsbLay", {1400, 0, 200, 900}, {750, 250, 10, 50, 300}};
  Slider sldDrag{*this, "sldDrag", {0, 1700, 600, 200}, {.min = -5, .max = 5, .largeChange = 4}};
  Timer tmrFast{*this, "tmrFast", {false, 100}};
  Timer tmrSlow{*this, "tmrSlow", {false, 1000}};
  TextBox txtName{*this, "txtName", {1700, 0, 900, 300}};
  ListBox lstNames{*this, "lstNames", {1700, 400, 900, 300}};
  RichTextBox rtbText{*this, "rtbText", {1700, 800, 900, 300}};
  Menu mnuMain{*this, "mnuMain", {.caption = "Main"}};
  Menu mnuOne{mnuMain, "mnuOne", {.caption = "One"}};
  Menu mnuBreak{mnuMain, "mnuBreak", {.caption = "-", .enabled = false}};
  Menu mnuOff{mnuMain, "mnuOff", {.caption = "Off", .enabled = false}};
  Menu mnuOther{*this, "mnuOther", {.caption = "Other"}};
  Menu mnuElse{mnuOther, "mnuElse", {.caption = "Else"}};

  TrialForm(Scene& scene, SideForm& side)
      : Form(scene, "Trial", {.caption = "Trial", .clientWidth = 3000, .clientHeight = 2000}), side_(side) {
    Bind(Load, &TrialForm::Form_Load);
    Bind(QueryUnload, &TrialForm::Form_QueryUnload);
    Bind(imgGun.Click, &TrialForm::imgGun_Click);
    Bind(picBoard.MouseMove, &TrialForm::picBoard_MouseMove);
    Bind(imgGun.MouseMove, &TrialForm::imgGun_MouseMove);
    Bind(cmdGo.Click, &TrialForm::cmdGo_Click);
    Bind(cmdMenu.Click, &TrialForm::cmdMenu_Click);
    Bind(cmdAsk.Click, &TrialForm::cmdAsk_Click);
    Bind(hsbTime.Change, &TrialForm::hsbTime_Change);
    Bind(sldDrag.Scroll, &TrialForm::sldDrag_Scroll);
    Bind(tmrFast.Tick, &TrialForm::tmrFast_Timer);
    Bind(tmrSlow.Tick, &TrialForm::tmrSlow_Timer);
    Bind(txtName.KeyPress, &TrialForm::txtName_KeyPress);
    Bind(rtbText.SelChange, &TrialForm::rtbText_SelChange);
    Bind(mnuOne.Click, &TrialForm::mnuOne_Click);
  }

 private:
  void Note(const std::string& what) { lblLog.Caption = lblLog.Caption.Get() + what + ";"; }

  void Form_Load() {
    Line1.Load(2);
    Line1.Load(1);
    lstNames.AddItem("Ada");
    lstNames.AddItem("\"Bo\"\t");
  }
  void Form_QueryUnload() { side_.Unload(); }
  void imgGun_Click() {
    scene().sndPlaySoundA(scene().AppPath() + "\\Sounds\\bang.wav", 1);
    scene().Beep();
    scene().platform().PutOnClipboard("a\r\n\"b\"");
  }
  void picBoard_MouseMove() { Note("board"); }
  void imgGun_MouseMove() { Note("gun"); }
  void cmdGo_Click() {
    side_.Show();
    picBoard.PSet(10, 20.5);
    picBoard.DrawWidth = 3;
    picBoard.PSet(30, 40, 0x123456);
    picBoard.PSet(5000, 5000);
    Note(ToText(scene().Rnd()));
  }
  void cmdMenu_Click() { Note(PopupMenu(mnuMain, 1320, 668) ? "chosen" : "dismissed"); }
  void cmdAsk_Click() {
    Note(ToText(scene().MsgBox("Sure?", 52, "Ask")));
    Note(ToText(scene().MsgBox("So.", 48, "Tell")));
  }
  void hsbTime_Change() { Note("time" + ToText(std::int32_t{hsbTime.Value})); }
  void sldDrag_Scroll() { Note("drag" + ToText(sldDrag.Value)); }
  void tmrFast_Timer() { Note("f"); }
  void tmrSlow_Timer() { Note("s"); }
  // Enter hides the box; a key 33 asks for a line that nobody has loaded.
  void txtName_KeyPress(std::int16_t code) {
    Note(ToText(std::int32_t{code}));
    if (code == 13) txtName.Visible = false;
    if (code == 33) Line1(9).Visible = true;
  }
  void rtbText_SelChange() { Note("sel" + ToText(rtbText.SelLength())); }
  void mnuOne_Click() { Note("one"); }

  SideForm& side_;
};

}  // namespace quintara
