#include "scene/object.h"

#include <cstdio>
#include <cstdlib>
#include <functional>

#include "scene/container.h"
#include "scene/control_array.h"
#include "scene/form.h"

namespace quintara {

Object::Object(Kind kind, Container& container, const ObjectName& name)
    : form_(nullptr), container_(&container), name_(name.name), kind_(kind), index_(name.index) {
  // Members are built in the order of their declaration: a container declared after its child is not there
  // yet.
  if (name.array == nullptr && std::less<const void*>()(this, &container)) {
    std::fprintf(stderr, "%s is declared before its container\n", std::string(name_).c_str());
    std::abort();
  }
  form_ = &container.form();
  container.Join(*this);
  form_->objects_.push_back(this);
  if (name.array != nullptr) name.array->Enter(*this, name.index);
}

std::string FullName(const Object& object) {
  std::string name(object.name());
  if (object.index() != Object::notInArray) name += "(" + std::to_string(object.index()) + ")";
  return name;
}

bool IsShown(const Object& object) {
  const Object* at = &object;
  while (at->container() != nullptr) {
    if (!at->IsVisible()) return false;
    at = &at->container()->object();
  }
  return static_cast<const Form*>(at)->loaded() && at->IsVisible();
}

}  // namespace quintara
