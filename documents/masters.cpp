#include "documents/masters.h"

#include "numbers/numbers.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr std::int16_t enter = 13;
constexpr double masterPoints = 35;
constexpr double grandMasterPoints = 45;

}  // namespace

MastersForm::MastersForm(Scene& owner, const MainForm& mainForm)
    : MastersControls(owner), mainForm_(mainForm) {
  Bind(Load, &MastersForm::ReadList);
  Bind(nameBox.KeyPress, &MastersForm::EnterName);
  Bind(removeButton.Click, &MastersForm::RemoveNames);
  Bind(cancelButton.Click, &MastersForm::Unload);
}

void MastersForm::ReadList() {
  const std::string path = mainForm_.shared.programFolder + "Masters.txt";
  const auto lines = scene().files().ReadLines(path);
  fileIsUnread_ = !lines && scene().files().Exists(path);
  if (fileIsUnread_) {
    scene().TellFault(
        "The list of masters in the file Masters.txt could not be read. The file is left as it is.");
  }
  if (!lines) return;
  for (const std::string& line : *lines) list.AddItem(line);
}

std::optional<std::string> MastersForm::Entry() const {
  const double points = Val(mainForm_.score.Caption);
  if (!(points >= masterPoints)) return std::nullopt;
  return nameBox.Text.Get() +
         (points >= grandMasterPoints ? " - Grand Master of Quintara" : " - Master of Quintara");
}

void MastersForm::EnterName(std::int16_t key) {
  if (key != enter) return;
  if (const auto entry = Entry()) list.AddItem(*entry);
  namePanel.Visible = false;
  SaveList();
  mainForm_.shared.PlayUnlessSoundIsOff(scene(), "gong.wav");
}

void MastersForm::RemoveNames() {
  const MessageBox question{"Are you sure you want to erase all names from the Quintara Master list?",
                            "Removing names", MessageBox::Buttons::YesAndNo};
  scene().Ask(question, *this, [this](Answer answer) { RemoveIf(answer); });
}

void MastersForm::RemoveIf(Answer answer) {
  if (answer != Answer::Yes) return;
  list.Clear();
  namePanel.Visible = false;
  SaveList();
}

void MastersForm::SaveList() {
  if (!fileIsUnread_ &&
      scene().files().WriteLines(mainForm_.shared.programFolder + "Masters.txt", list.items()))
    return;
  scene().TellFault(
      "The list of masters could not be saved in the file Masters.txt. The file was left as it is; the list "
      "in this window stays until the window is closed.");
}

}  // namespace quintara
