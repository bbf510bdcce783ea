#pragma once

#include "scene/controls.h"

namespace quintara {

// Says which version of the program this is.
class AboutForm : public Form {
 public:
  explicit AboutForm(Scene& scene);

  // clang-format off
  SSPanel       SSPanel1{*this, "SSPanel1", { 720,  120, 2775, 495}, {.caption = "Quintara Version 1.0", .backColor = 0x00C0C0FF}};
  CommandButton cmdOK   {*this, "cmdOK",    {2520, 1200,  975, 255}, {.caption = "OK"}};
  // clang-format on

 private:
  void Form_Load();
  void cmdOK_Click();
};

}  // namespace quintara
