#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::BindDocuments() {
  const struct {
    Menu& item;
    HelpTopic topic;
  } rows[] = {{introductionItem, HelpTopic::Introduction},
              {scenarioItem, HelpTopic::Scenario},
              {rulesItem, HelpTopic::Rules},
              {physicsItem, HelpTopic::Physics},
              {codeItem, HelpTopic::Code},
              {printingItem, HelpTopic::Printing}};
  for (const auto& row : rows) row.item.Click.Bind([this, topic = row.topic] { documents_->Open(topic); });
}

void QuintaraForm::OpenHelpMenu() {
  PopupMenu(helpMenu, 13200, 6680);
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
  scene().Tell(
      "To uninstall Quintara and all it's associated files from your computer, simply double click the "
      "Add/Remove Programs icon on Windows Control Panel, then select Quintara and click Add/Remove.",
      "Uninstall Quintara");
}

}  // namespace quintara
