#pragma once

#include "scene/controls.h"

namespace quintara {

// The window that says which version this is: every control with its start values, front to back. Places are
// in twips: left, top, width, height.
class AboutControls : public Form {
 protected:
  explicit AboutControls(Scene& scene)
      : Form(scene, "About", {.caption = "About Quintara", .clientWidth = 4305, .clientHeight = 1590}) {}

 public:
  // clang-format off
  SSPanel       SSPanel1{*this, "SSPanel1", { 720,  120, 2775, 495}, {.caption = "Quintara Version 1.0", .backColor = 0x00C0C0FF}};
  CommandButton okButton{*this, "cmdOK",    {2520, 1200,  975, 255}, {.caption = "OK"}};
  // clang-format on
};

}  // namespace quintara
