#include "scene/box.h"

#include "scene/container.h"

namespace quintara {

Box::Box(Kind kind, Container& container, const ObjectName& name, const Rectangle& place, bool visible)
    : Object(kind, container, name),
      Left(changeCount(), Axis::Across, place.left, container.scale()),
      Top(changeCount(), Axis::Down, place.top, container.scale()),
      Width(changeCount(), Axis::Across, place.width, container.scale()),
      Height(changeCount(), Axis::Down, place.height, container.scale()),
      Visible(changeCount(), visible) {}

void Box::RestoreBox(const Rectangle& place, bool visible) {
  const Scale& scale = container()->scale();
  Left.Place(place.left, scale);
  Top.Place(place.top, scale);
  Width.Place(place.width, scale);
  Height.Place(place.height, scale);
  Visible = visible;
}

void Box::ConvertPlace(const Scale& from, const Scale& to) {
  for (Coordinate* coordinate : {&Left, &Top, &Width, &Height})
    coordinate->Place(coordinate->Twips(from), to);
}

Rectangle Box::Surface() const {
  const Scale& scale = container()->scale();
  return {Left.Twips(scale), Top.Twips(scale), Width.Twips(scale), Height.Twips(scale)};
}

}  // namespace quintara
