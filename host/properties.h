#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/values.h"
#include "scene/controls.h"

// The properties of every kind of object by name.

namespace quintara::host {

// The value of a property as it is written. Refused where the object has none of that name, and where its
// form is not loaded: then only `Loaded` and `Visible` of the form itself can be read.
Result<std::string> ReadProperty(Object& object, std::string_view name);

// Checks a value for a property and gives the statement that assigns it, for the time when the form is
// loaded. Refused where the property is unknown or can't be written, or doesn't take the value.
using Assignment = std::function<void()>;
Result<Assignment> PrepareAssignment(Object& object, std::string_view name, const Word& value);

struct NamedValue {
  std::string name;
  std::string value;
};
// What a dump tells of an object, in its order.
std::vector<NamedValue> DumpedProperties(Object& object);

// A value for a bar; refused where it lies outside the range of the type or of the bar.
Result<std::int16_t> ReadBarValue(const ScrollBar& bar, const Word& word);
Result<std::int32_t> ReadBarValue(const Slider& slider, const Word& word);

}  // namespace quintara::host
