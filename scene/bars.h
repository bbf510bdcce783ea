#pragma once

#include <cstdint>

#include "scene/box.h"
#include "scene/event.h"
#include "scene/property.h"

namespace quintara {

// The value nearest to `wanted` that lies between the two ends.
std::int32_t WithinRange(std::int32_t wanted, std::int32_t oneEnd, std::int32_t otherEnd);

struct ScrollBarLooks {
  std::int16_t min = 0;          // at the top or left end; it may be the larger of the two
  std::int16_t max = 0;          // at the bottom or right end
  std::int16_t smallChange = 1;  // what an arrow moves by
  std::int16_t largeChange = 1;  // what a click in the trough moves by
  std::int16_t value = 0;
};

class ScrollBar : public Box {
 public:
  // Writing another value raises Change before the next statement runs. A value outside the range becomes the
  // nearest one inside.
  ActiveProperty<std::int16_t, ScrollBar> Value;
  Property<bool> Enabled;
  const std::int16_t Min, Max, SmallChange, LargeChange;
  Event<> Change;

  bool IsEnabled() const override { return Enabled; }

 protected:
  ScrollBar(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
            const ScrollBarLooks& looks);

 private:
  void WriteValue(std::int16_t value);
};

class HScrollBar : public ScrollBar {
 public:
  HScrollBar(Container& container, const ObjectName& name, const Rectangle& place,
             const ScrollBarLooks& looks)
      : ScrollBar(Kind::HScrollBar, container, name, place, looks) {}
};

class VScrollBar : public ScrollBar {
 public:
  VScrollBar(Container& container, const ObjectName& name, const Rectangle& place,
             const ScrollBarLooks& looks)
      : ScrollBar(Kind::VScrollBar, container, name, place, looks) {}
};

struct SliderLooks {
  std::int32_t min = 0;
  std::int32_t max = 10;
  std::int32_t value = 0;
  std::int32_t smallChange = 1;
  std::int32_t largeChange = 5;
  std::int32_t tickFrequency = 1;
};

class Slider : public Box {
 public:
  Slider(Container& container, const ObjectName& name, const Rectangle& place, const SliderLooks& looks);

  // Writing it raises nothing: Scroll comes only from the user. A value outside the range becomes the nearest
  // inside.
  ActiveProperty<std::int32_t, Slider> Value;
  const std::int32_t Min, Max, SmallChange, LargeChange;
  Event<> Scroll;

  const SliderLooks& looks() const { return looks_; }

 private:
  void WriteValue(std::int32_t value);

  SliderLooks looks_;
};

}  // namespace quintara
