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

Result<Form&> FindForm(const Scene& scene, std::string_view name) {
  Form* form = scene.FindForm(name);
  if (form == nullptr) return Refusal{"there is no form " + Quoted(name)};
  return *form;
}

Result<Object&> FindObject(const Scene& scene, std::string_view path) {
  const std::size_t dot = path.find('.');
  const auto form = FindForm(scene, path.substr(0, dot));
  if (!form) return *form.refusal();
  if (dot == std::string_view::npos) return *form;
  const auto called = SplitIndex(path.substr(dot + 1));
  if (!called) return *called.refusal();
  Object* object = form->Find(called->name, called->index.value_or(Object::notInArray));
  if (object == nullptr) return Refusal{"there is no object " + Quoted(path)};
  return *object;
}

Result<PropertyPath> FindProperty(const Scene& scene, std::string_view path) {
  const std::size_t dot = path.rfind('.');
  if (dot == std::string_view::npos) return Refusal{"a property is expected, not " + Quoted(path)};
  const auto object = FindObject(scene, path.substr(0, dot));
  if (!object) return *object.refusal();
  return PropertyPath{*object, path.substr(dot + 1)};
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
