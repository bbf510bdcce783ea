#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::cmdHelp_Click() {
  PopupMenu(mnuHelp, 13200, 6680);
}

void QuintaraForm::mnuMasters_Click() {
  frmMasters->Show();
  frmMasters->Left = (scene().ScreenWidth() - frmMasters->Width) / 2;
  frmMasters->Top = (scene().ScreenHeight() - frmMasters->Height) / 2;
}

}  // namespace quintara
