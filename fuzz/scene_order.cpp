#include "fuzz/scene_order.h"

#include <algorithm>

#include "fuzz/require.h"
#include "host/names.h"
#include "host/properties.h"
#include "scene/visit.h"
#include "text/utf8.h"

namespace quintara::fuzz {
namespace {

// Every property of every object of a form, a line each.
std::vector<std::string> ValuesOf(Form& form) {
  std::vector<std::string> values;
  const auto add = [&values](Object& object) {
    for (const host::NamedValue& property : host::DumpedProperties(object)) {
      values.push_back(host::PathOf(object) + "." + property.name + " = " + property.value);
    }
  };
  add(form);
  for (Object* object : form.objects()) {
    add(*object);
    if (const Container* surface = object->AsContainer()) {
      values.push_back(std::to_string(surface->DrawWidth) + " " + std::to_string(surface->dots().size()));
    }
  }
  values.push_back(std::to_string(form.ScaleMode) + " " + std::to_string(form.ScaleWidth) + " " +
                   std::to_string(form.ScaleHeight) + " " + std::to_string(form.dots().size()));
  return values;
}

std::uint64_t ChangesOf(const Form& form) {
  std::uint64_t changes = form.changes() + form.wipes() + form.objects().size();
  for (const Object* object : form.objects()) changes += object->changes();
  return changes;
}

template <typename Bar>
void RequireInRange(const Bar& bar) {
  const auto value = bar.Value.Get();
  Require(value >= std::min(bar.Min, bar.Max) && value <= std::max(bar.Min, bar.Max),
          "a bar stands between its ends", FullName(bar));
}

void RequireSelectionInText(const RichTextBox& box) {
  const auto characters = static_cast<std::int32_t>(CharacterCount(box.PlainText()));
  Require(box.SelStart() >= 0 && box.SelLength() >= 0 && box.SelStart() + box.SelLength() <= characters,
          "a selection lies within its text", FullName(box));
}

void RequireOrder(const Object& object) {
  Visit(
      object, [](const ScrollBar& bar) { RequireInRange(bar); },
      [](const Slider& slider) { RequireInRange(slider); },
      [](const RichTextBox& box) { RequireSelectionInText(box); }, [](const Object&) {});
}

}  // namespace

// Every program is built alike, so the values of the first one stand for all.
const std::vector<SceneOrder::Values>& SceneOrder::StartValues(const Scene& scene) {
  static const std::vector<Values> values = [&scene] {
    std::vector<Values> start;
    for (Form* form : scene.forms()) start.push_back(ValuesOf(*form));
    return start;
  }();
  return values;
}

SceneOrder::SceneOrder(Scene& scene) : scene_(scene) {
  const std::vector<Values>& start = StartValues(scene);
  for (std::size_t i = 0; i < start.size(); ++i) {
    Form& form = *scene.forms()[i];
    forms_.push_back({&form, start[i], ChangesOf(form)});
  }
}

void SceneOrder::RequireHolds() {
  const std::vector<Form*>& loaded = scene_.loadedForms();
  Require(!scene_.dispatcher().busy(), "no handler runs between two inputs");
  for (Unloaded& each : forms_) {
    const Form& form = *each.form;
    const auto listed = std::count(loaded.begin(), loaded.end(), each.form);
    Require(listed == (form.loaded() ? 1 : 0), "the loaded forms are listed", form.name());
    Require(form.loaded() || !form.IsVisible(), "only a loaded form is shown", form.name());
    Require(form.focus() == nullptr || &form.focus()->form() == &form, "the focus stays in the form");
    if (!form.loaded()) RequireStartValues(each);
    for (const Object* object : form.objects()) RequireOrder(*object);
  }
}

void SceneOrder::RequireStartValues(Unloaded& unloaded) const {
  const std::uint64_t changes = ChangesOf(*unloaded.form);
  if (changes == unloaded.changes) return;
  unloaded.changes = changes;
  const Values values = ValuesOf(*unloaded.form);
  const auto [now, start] =
      std::mismatch(values.begin(), values.end(), unloaded.start.begin(), unloaded.start.end());
  if (now == values.end() && start == unloaded.start.end()) return;
  Require(false, "an unloaded form has its start values", now == values.end() ? *start : *now);
}

}  // namespace quintara::fuzz
