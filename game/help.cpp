#include "game/quintara.h"
#include "numbers/numbers.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::cmdHelp_Click() {
  PopupMenu(helpMenu, 13200, 6680);
}

void QuintaraForm::mnuIntro_Click() {
  Analysis->Open(HelpTopic::Introduction);
}
void QuintaraForm::mnuScenario_Click() {
  Analysis->Open(HelpTopic::Scenario);
}
void QuintaraForm::mnuRules_Click() {
  Analysis->Open(HelpTopic::Rules);
}
void QuintaraForm::mnuPhysics_Click() {
  Analysis->Open(HelpTopic::Physics);
}
void QuintaraForm::mnuCodeSegment_Click() {
  Analysis->Open(HelpTopic::Code);
}
void QuintaraForm::mnuPrint_Click() {
  Analysis->Open(HelpTopic::Printing);
}

void QuintaraForm::mnuMasters_Click() {
  frmMasters->Show();
  frmMasters->Left = (scene().ScreenWidth() - frmMasters->Width) / 2;
  frmMasters->Top = (scene().ScreenHeight() - frmMasters->Height) / 2;
}

void QuintaraForm::mnuAbout_Click() {
  About->Show();
}

void QuintaraForm::mnuReadme_Click() {
  readme.Visible = true;
  closeReadmeButton.Visible = true;
  readme.Width = 8000;
  readme.Height = 6000;
  readme.Left = 1000;
  readme.Top = 400;
  closeReadmeButton.Left = 8000;
  closeReadmeButton.Top = 6000;
  ReadDocumentInto(readme, shared.programFolder, "Readme.rtf");
}

void QuintaraForm::cmdCloseReadme_Click() {
  readme.Visible = false;
  closeReadmeButton.Visible = false;
}

void QuintaraForm::mnuUninstall_Click() {
  constexpr std::int32_t okWithExclamation = 48;
  scene().MsgBox(
      "To uninstall Quintara and all it's associated files from your computer, simply double click the "
      "Add/Remove Programs icon on Windows Control Panel, then select Quintara and click Add/Remove.",
      okWithExclamation, "Uninstall Quintara");
}

}  // namespace quintara
