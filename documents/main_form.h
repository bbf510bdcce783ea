#pragma once

#include "documents/shared_settings.h"
#include "scene/controls.h"

namespace quintara {

// What the windows of this folder use of the main form, which lies above them: its place and size, the score,
// the two place names on the landscape, and the settings that all share.
struct MainForm {
  Form& form;
  Label& score;       // points, as text
  Label& valleyName;  // Valley of the Winding River
  Label& peakName;    // Sugarcone Peak
  SharedSettings& shared;
};

}  // namespace quintara
