#include "scene/bars.h"

#include <algorithm>

namespace quintara {

std::int32_t WithinRange(std::int32_t wanted, std::int32_t oneEnd, std::int32_t otherEnd) {
  return std::clamp(wanted, std::min(oneEnd, otherEnd), std::max(oneEnd, otherEnd));
}

ScrollBar::ScrollBar(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
                     const ScrollBarLooks& looks)
    : Box(kind, container, name, place),
      Value(properties(), looks.value, *this, &ScrollBar::WriteValue),
      Enabled(properties(), true),
      Min(looks.min),
      Max(looks.max),
      SmallChange(looks.smallChange),
      LargeChange(looks.largeChange) {}

void ScrollBar::WriteValue(std::int16_t value) {
  const auto inside = static_cast<std::int16_t>(WithinRange(value, Min, Max));
  if (inside == Value.Get()) return;
  Value.Keep(inside);
  Change.Raise();
}

Slider::Slider(Container& container, const ObjectName& name, const Rectangle& place, const SliderLooks& looks)
    : Box(Kind::Slider, container, name, place),
      Value(properties(), looks.value, *this, &Slider::WriteValue),
      Min(looks.min),
      Max(looks.max),
      SmallChange(looks.smallChange),
      LargeChange(looks.largeChange),
      looks_(looks) {}

void Slider::WriteValue(std::int32_t value) {
  Value.Keep(WithinRange(value, Min, Max));
}

}  // namespace quintara
