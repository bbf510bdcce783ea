#include "scene/box.h"

#include "scene/container.h"

namespace quintara {

Box::Box(Kind kind, Container& container, const ObjectName& name, const Rectangle& place, bool visible)
    : Object(kind, container, name),
      Left(properties(), Axis::Across, place.left, container.scale()),
      Top(properties(), Axis::Down, place.top, container.scale()),
      Width(properties(), Axis::Across, place.width, container.scale()),
      Height(properties(), Axis::Down, place.height, container.scale()),
      Visible(properties(), visible) {}

void Box::ConvertPlace(const Scale& next) {
  for (Coordinate* coordinate : {&Left, &Top, &Width, &Height}) coordinate->Convert(next);
}

}  // namespace quintara
