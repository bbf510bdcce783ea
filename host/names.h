#pragma once

#include <string>
#include <string_view>

#include "host/result.h"
#include "scene/form.h"
#include "scene/scene.h"

namespace quintara::host {

// What a command means by a name. Names are compared letter for letter; refused where there is none such.
// Finding a form or one of its objects is no touch: it loads nothing.

Result<Form&> FindForm(const Scene& scene, std::string_view name);

// A form, FORM, or an object of one, FORM.NAME or FORM.NAME(INDEX).
Result<Object&> FindObject(const Scene& scene, std::string_view path);

// What OBJECT.PROPERTY names. Whether the object has that property is not looked at.
struct PropertyPath {
  Object& object;
  std::string_view property;
};
Result<PropertyPath> FindProperty(const Scene& scene, std::string_view path);

// How an object is named: the reverse of FindObject.
std::string PathOf(const Object& object);

// Whether some menu of some form has an item of that name that can be chosen, which a separator can't.
bool IsMenuItem(const Scene& scene, std::string_view name);

}  // namespace quintara::host
