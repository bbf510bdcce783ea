#include "host/names.h"

#include "host/values.h"
#include "scene/visit.h"

namespace quintara::host {
namespace {

bool HasItem(const Menu& menu, std::string_view name) {
  for (const Menu* item : menu.items()) {
    if (!item->IsSeparator() && FullName(*item) == name) return true;
  }
  return false;
}

}  // namespace

Form& FindForm(const Scene& scene, std::string_view name) {
  Form* form = scene.FindForm(name);
  if (form == nullptr) throw Refusal("there is no form " + Quoted(name));
  return *form;
}

Object& FindObject(const Scene& scene, std::string_view path) {
  const std::size_t dot = path.find('.');
  Form& form = FindForm(scene, path.substr(0, dot));
  if (dot == std::string_view::npos) return form;
  const auto [name, index] = SplitIndex(path.substr(dot + 1));
  Object* object = form.Find(name, index.value_or(Object::notInArray));
  if (object == nullptr) throw Refusal("there is no object " + Quoted(path));
  return *object;
}

PropertyPath FindProperty(const Scene& scene, std::string_view path) {
  const std::size_t dot = path.rfind('.');
  if (dot == std::string_view::npos) throw Refusal("a property is expected, not " + Quoted(path));
  return {FindObject(scene, path.substr(0, dot)), path.substr(dot + 1)};
}

std::string PathOf(const Object& object) {
  const std::string form(object.form().name());
  return object.container() == nullptr ? form : form + "." + FullName(object);
}

bool IsMenuItem(const Scene& scene, std::string_view name) {
  for (const Form* form : scene.forms()) {
    for (const Object* object : form->objects()) {
      const auto* menu = As<const Menu>(*object);
      if (menu != nullptr && HasItem(*menu, name)) return true;
    }
  }
  return false;
}

}  // namespace quintara::host
