#include "scene/bars.h"

#include <algorithm>

namespace quintara {

std::int32_t WithinRange(std::int32_t wanted, std::int32_t oneEnd, std::int32_t otherEnd) {
  return std::clamp(wanted, std::min(oneEnd, otherEnd), std::max(oneEnd, otherEnd));
}

ScrollBar::ScrollBar(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
                     const ScrollBarLooks& looks)
    : Box(kind, container, name, place, true),
      Value(*this, looks.value),
      Enabled(changeCount(), true),
      Min(looks.min),
      Max(looks.max),
      SmallChange(looks.smallChange),
      LargeChange(looks.largeChange),
      place_(place),
      looks_(looks) {}

void ScrollBar::WriteValue(std::int16_t value) {
  const auto inside = static_cast<std::int16_t>(WithinRange(value, Min, Max));
  if (inside == Value.Get()) return;
  Value.Keep(inside, changeCount());
  Change.Raise();
}

void ScrollBar::Restore() {
  RestoreBox(place_, true);
  Value.Keep(looks_.value, changeCount());
  Enabled = true;
}

Slider::Slider(Container& container, const ObjectName& name, const Rectangle& place, const SliderLooks& looks)
    : Box(Kind::Slider, container, name, place, true),
      Value(*this, looks.value),
      Min(looks.min),
      Max(looks.max),
      SmallChange(looks.smallChange),
      LargeChange(looks.largeChange),
      place_(place),
      looks_(looks) {}

void Slider::WriteValue(std::int32_t value) {
  Value.Keep(WithinRange(value, Min, Max), changeCount());
}

void Slider::Restore() {
  RestoreBox(place_, true);
  Value.Keep(looks_.value, changeCount());
}

}  // namespace quintara
