#include "documents/about.h"

#include "scene/scene.h"

namespace quintara {

AboutForm::AboutForm(Scene& owner) : AboutControls(owner) {
  Bind(Load, &AboutForm::Form_Load);
  Bind(okButton.Click, &AboutForm::cmdOK_Click);
}

void AboutForm::Form_Load() {
  Left = scene().ScreenWidth() / 2 - Width / 2;
  Top = scene().ScreenHeight() / 2 - Height / 2;
}

void AboutForm::cmdOK_Click() {
  Unload();
}

}  // namespace quintara
