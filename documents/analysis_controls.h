#pragma once

#include "scene/controls.h"

namespace quintara {

// The window in which the documents are read: every control with its start values, front to back. Places are
// in twips: left, top, width, height; each document lays the window out anew.
class AnalysisControls : public Form {
 protected:
  explicit AnalysisControls(Scene& scene)
      : Form(scene, "Analysis",
             {.caption = "Analysis of Quintara",
              .clientWidth = 5985,
              .clientHeight = 9240,
              .scale = Scale::InUnitsOf(1, 1)}) {}

 public:
  // clang-format off
  RichTextBox   documentBox    {*this, "rtbMath",       {   0,    0, 6000, 8640}, {.backColor = 0x80000005}};
  CommandButton benchButton    {*this, "cmdFreeFall",   { 120, 8745,  975,  350}, {.caption = "Projectile"}};
  CommandButton copyButton     {*this, "cmdCopy",       {1680, 8745,  975,  350}, {.enabled = false, .caption = "Copy"}};
  CommandButton cancelButton   {*this, "cmdCancel",     {3240, 8745,  975,  350}, {.caption = "Cancel"}};
  CommandButton simulatorButton{*this, "cmdTrajectory", {4800, 8745,  975,  350}, {.caption = "Trajectory"}};
  // clang-format on
};

}  // namespace quintara
