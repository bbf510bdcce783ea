#pragma once

#include "scene/controls.h"

namespace quintara {

// The window with the list of masters: every control with its start values, front to back within its
// container. Places are in twips: left, top, width, height.
class MastersControls : public Form {
 protected:
  explicit MastersControls(Scene& scene)
      : Form(scene, "frmMasters",
             {.caption = "Masters of Quintara", .clientWidth = 11085, .clientHeight = 8985}) {}

 public:
  // clang-format off
  Label         Label1      {*this, "Label1",     {2160, 1080,  6855,  975}, {.caption = "The following Individuals have earned the title of Masters of Quintara:", .alignment = Alignment::Centre, .backStyle = BackStyle::Transparent, .font = Font{"Mural Script", 20.25, true}}};
  Image         Image1      {*this, "Image1",     {   0,    0, 11055, 9000}, {.picture = "masters", .stretch = true}};
  ListBox       list        {*this, "List1",      {2520, 2760,  6015, 2460}, {.backColor = 0x00FFFF00, .foreColor = 0x000000C0, .font = Font{"Arial", 9.75}}};
  PictureBox    namePanel   {*this, "Picture1",   {3480, 5400,  4215,  975}, {.visible = false}};
  Label         Label2      {namePanel, "Label2", { 120,  120,  4215,  255}, {.caption = "Type your first and last name, then press Enter:", .font = Font{"MS Sans Serif", 8.25, true}}};
  TextBox       nameBox     {namePanel, "Text1",  { 240,  480,  3735,  285}};
  CommandButton removeButton{*this, "cmdRemove",  {1560, 8400,  1335,  375}, {.caption = "Remove"}};
  CommandButton cancelButton{*this, "cmdCancel",  {8160, 8400,  1335,  375}, {.caption = "Cancel"}};
  // clang-format on
};

}  // namespace quintara
