#include "scene/control_array.h"

#include <algorithm>
#include <string>

#include "scene/container.h"
#include "scene/form.h"
#include "scene/scene.h"

namespace quintara {

ControlArrayBase::ControlArrayBase(Form& form, std::string_view name) : form_(form), name_(name) {
  form.arrays_.push_back(this);
}

void ControlArrayBase::Enter(Object& element, std::int16_t index) {
  const auto place = static_cast<std::size_t>(index);
  if (elements_.size() <= place) elements_.resize(place + 1, nullptr);
  elements_[place] = &element;
}

void ControlArrayBase::Adopt(std::unique_ptr<Object> element) {
  // The constructor put it behind everything, as it does with the controls of the table.
  Container& container = *element->container();
  container.Leave(*element);
  container.JoinInFrontOfItsKind(*element);

  auto& objects = form_.objects_;
  objects.pop_back();
  const auto isBefore = [&](const Object* other) {
    return other->name() == name_ && other->index() < element->index();
  };
  auto place = std::find(objects.begin(), objects.end(), elements_.front()) + 1;
  while (place != objects.end() && isBefore(*place)) ++place;
  objects.insert(place, element.get());
  loaded_.push_back(std::move(element));
}

void ControlArrayBase::Unload(std::int16_t index) {
  const auto isIt = [&](const std::unique_ptr<Object>& element) { return element->index() == index; };
  const auto found = std::find_if(loaded_.begin(), loaded_.end(), isIt);
  if (found == loaded_.end()) return;
  elements_[static_cast<std::size_t>(index)] = nullptr;
  (*found)->container()->Leave(**found);
  std::erase(form_.objects_, found->get());
  loaded_.erase(found);
}

void ControlArrayBase::UnloadAll() {
  while (!loaded_.empty()) Unload(loaded_.back()->index());
}

void ControlArrayBase::FaultMissing(std::int16_t index) const {
  form_.scene().FaultFound(std::string(name_) + "(" + std::to_string(index) + ") does not exist");
}

}  // namespace quintara
