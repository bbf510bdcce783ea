#pragma once

#include "documents/main_form.h"
#include "scene/controls.h"

namespace quintara {

// The list of masters: a hall of fame in the file Masters.txt, one entry to a line, in the order in which the
// names came in. The window shows it, takes the name of a new master, and can erase it.
class MastersForm : public Form {
 public:
  MastersForm(Scene& scene, const MainForm& mainForm);

  // clang-format off
  Label         Label1   {*this, "Label1",    {2160, 1080,  6855,  975}, {.caption = "The following Individuals have earned the title of Masters of Quintara:", .alignment = Alignment::Centre, .backStyle = BackStyle::Transparent, .font = Font{"Mural Script", 20.25, true}}};
  Image         Image1   {*this, "Image1",    {   0,    0, 11055, 9000}, {.picture = "masters", .stretch = true}};
  ListBox       List1    {*this, "List1",     {2520, 2760,  6015, 2460}, {.backColor = 0x00FFFF00, .foreColor = 0x000000C0, .font = Font{"Arial", 9.75}}};
  PictureBox    Picture1 {*this, "Picture1",  {3480, 5400,  4215,  975}, {.visible = false}};
  Label         Label2   {Picture1, "Label2", { 120,  120,  4215,  255}, {.caption = "Type your first and last name, then press Enter:", .font = Font{"MS Sans Serif", 8.25, true}}};
  TextBox       Text1    {Picture1, "Text1",  { 240,  480,  3735,  285}};
  CommandButton cmdRemove{*this, "cmdRemove", {1560, 8400,  1335,  375}, {.caption = "Remove"}};
  CommandButton cmdCancel{*this, "cmdCancel", {8160, 8400,  1335,  375}, {.caption = "Cancel"}};
  // clang-format on

 private:
  void Form_Load();
  void Text1_KeyPress(std::int16_t KeyAscii);
  void cmdRemove_Click();
  void cmdCancel_Click();
  void SaveList();

  MainForm main_;
  // Something lies in the file's place that could not be read, and must not be lost.
  bool fileIsUnread_ = false;
};

}  // namespace quintara
