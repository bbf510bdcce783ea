#include "documents/about.h"

#include "scene/scene.h"

namespace quintara {

AboutForm::AboutForm(Scene& owner) : AboutControls(owner) {
  Bind(Load, &AboutForm::CentreOnScreen);
  Bind(okButton.Click, &AboutForm::Unload);
}

void AboutForm::CentreOnScreen() {
  Left = scene().ScreenWidth() / 2 - Width / 2;
  Top = scene().ScreenHeight() / 2 - Height / 2;
}

}  // namespace quintara
