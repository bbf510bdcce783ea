#include "scene/scene.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "scene/form.h"
#include "scene/menu.h"

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
  questions_.DropAll();
  platform_.ProgramEnded();
}

void Scene::PlaySound(const std::string& path) {
  platform_.PlaySound(files_.Locate(path));
}

void Scene::Ask(const MessageBox& box, Form& asker, std::function<void(Answer)> then) {
  questions_.Put(&asker, [this, box, then = std::move(then)] {
    platform_.ShowMessageBox(
        box, [this, then](Answer answer) { questions_.Replied([then, answer] { then(answer); }); });
  });
}

void Scene::Tell(const std::string& text, const std::string& title) {
  questions_.Put(nullptr, [this, box = MessageBox{text, title}] {
    platform_.ShowMessageBox(box, [this](Answer) { questions_.Replied({}); });
  });
}

void Scene::OfferMenu(Form& form, Menu& menu, double x, double y) {
  questions_.Put(&form, [this, &form, &menu, x, y] {
    platform_.OpenPopupMenu(form, menu, x, y, [this](Menu* chosen) {
      questions_.Replied(chosen == nullptr ? std::function<void()>() : [chosen] { chosen->Click.Raise(); });
    });
  });
}

void Scene::FaultFound(const std::string& what) {
  platform_.FaultFound(what);
  std::abort();
}

void Scene::LoadPictureInto(PictureBox& box, std::string_view path) const {
  if (files_.IsBitmap(path)) box.Picture = Picture{files_.Locate(path).name, true};
}

void Scene::Leave(Form& form) {
  std::erase(forms_, &form);
  std::erase(loadedForms_, &form);
}

// Input, questions and replies that the form can't have any more.
void Scene::DropWaiting(const Form& form) {
  dispatcher_.DropQueued(form);
  questions_.Drop(form);
}

void Scene::NoteUnloaded(Form& form) {
  std::erase(loadedForms_, &form);
  platform_.FormUnloaded(form);
  if (loadedForms_.empty()) End();
}

}  // namespace quintara
