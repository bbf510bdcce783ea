#include "game/quintara.h"
#include "numbers/numbers.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::OpenHelpMenu() {
  PopupMenu(helpMenu, 13200, 6680);
}

void QuintaraForm::ReadIntroduction() {
  documents_->Open(HelpTopic::Introduction);
}
void QuintaraForm::ReadScenario() {
  documents_->Open(HelpTopic::Scenario);
}
void QuintaraForm::ReadRules() {
  documents_->Open(HelpTopic::Rules);
}
void QuintaraForm::ReadPhysics() {
  documents_->Open(HelpTopic::Physics);
}
void QuintaraForm::ReadCode() {
  documents_->Open(HelpTopic::Code);
}
void QuintaraForm::ReadPrinting() {
  documents_->Open(HelpTopic::Printing);
}

void QuintaraForm::ShowMasters() {
  masters_->Show();
  masters_->Left = (scene().ScreenWidth() - masters_->Width) / 2;
  masters_->Top = (scene().ScreenHeight() - masters_->Height) / 2;
}

void QuintaraForm::ShowAbout() {
  about_->Show();
}

void QuintaraForm::OpenReadme() {
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

void QuintaraForm::CloseReadme() {
  readme.Visible = false;
  closeReadmeButton.Visible = false;
}

void QuintaraForm::ExplainUninstalling() {
  constexpr std::int32_t okWithExclamation = 48;
  scene().MsgBox(
      "To uninstall Quintara and all it's associated files from your computer, simply double click the "
      "Add/Remove Programs icon on Windows Control Panel, then select Quintara and click Add/Remove.",
      okWithExclamation, "Uninstall Quintara");
}

}  // namespace quintara
