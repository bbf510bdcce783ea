#include "scene/scene.h"

#include <algorithm>

#include "scene/form.h"

namespace quintara {

Scene::Scene(Platform& platform)
    : platform_(platform), appPath_(platform.ProgramFolder()), files_(platform.Disk(), appPath_) {
  chance_.Randomize(platform.Seed());
}

Form* Scene::FindForm(std::string_view name) const {
  const auto isIt = [&](const Form* form) { return form->name() == name; };
  const auto found = std::find_if(forms_.begin(), forms_.end(), isIt);
  return found == forms_.end() ? nullptr : *found;
}

void Scene::End() {
  if (ended_) return;
  ended_ = true;
  dispatcher_.Stop();
  platform_.ProgramEnded();
}

void Scene::PlaySound(const std::string& path) {
  platform_.PlaySound(files_.Locate(path));
}

std::int32_t Scene::MsgBox(const std::string& text, std::int32_t buttons, const std::string& title) {
  return platform_.ShowMessageBox(text, buttons, title);
}

void Scene::TellFault(const std::string& text) {
  MsgBox(text, message_box::exclamation, "Quintara");
}

void Scene::LoadPictureInto(PictureBox& box, std::string_view path) const {
  if (files_.IsBitmap(path)) box.Picture = Picture{files_.Locate(path).name, true};
}

void Scene::Leave(Form& form) {
  std::erase(forms_, &form);
  std::erase(loadedForms_, &form);
}

void Scene::NoteUnloaded(Form& form) {
  std::erase(loadedForms_, &form);
  platform_.FormUnloaded(form);
  if (loadedForms_.empty()) End();
}

}  // namespace quintara
