#pragma once

#include "documents/about_controls.h"

namespace quintara {

// Says which version of the program this is.
class AboutForm : public AboutControls {
 public:
  explicit AboutForm(Scene& scene);

 private:
  void CentreOnScreen();
};

}  // namespace quintara
