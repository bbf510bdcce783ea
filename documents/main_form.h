#pragma once

#include "documents/module1.h"
#include "scene/controls.h"

namespace quintara {

// What the windows of this folder use of the main form, which lies above them: its place and size, the score,
// the two place names on the landscape, and the public variables.
struct MainForm {
  Form& form;
  Label& Label17;  // the score, as text
  Label& Label28;  // Valley of the Winding River
  Label& Label29;  // Sugarcone Peak
  Module1& shared;
};

}  // namespace quintara
