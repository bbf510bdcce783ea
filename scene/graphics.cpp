#include "scene/graphics.h"

#include "scene/container.h"

namespace quintara {

Label::Label(Container& container, const ObjectName& name, const Rectangle& place, const LabelLooks& looks)
    : Box(Kind::Label, container, name, place, looks.visible),
      Caption(properties(), looks.caption),
      BackColor(properties(), looks.backColor),
      ForeColor(properties(), looks.foreColor),
      looks_(looks) {}

Label::Label(Container& container, const ObjectName& name, const Label& pattern)
    : Label(container, name, pattern.Surface(), pattern.looks()) {
  Caption = pattern.Caption;
  BackColor = pattern.BackColor;
  ForeColor = pattern.ForeColor;
}

Line::Line(Container& container, const ObjectName& name, const Segment& ends, const LineLooks& looks)
    : Object(Kind::Line, container, name),
      X1(properties(), Axis::Across, ends.x1, container.scale()),
      Y1(properties(), Axis::Down, ends.y1, container.scale()),
      X2(properties(), Axis::Across, ends.x2, container.scale()),
      Y2(properties(), Axis::Down, ends.y2, container.scale()),
      Visible(properties(), looks.visible),
      BorderColor(properties(), looks.borderColor),
      looks_(looks) {}

Line::Line(Container& container, const ObjectName& name, const Line& pattern)
    : Line(container, name, pattern.Surface(), pattern.looks()) {
  BorderColor = pattern.BorderColor;
}

void Line::ConvertPlace(const Scale& next) {
  for (Coordinate* coordinate : {&X1, &Y1, &X2, &Y2}) coordinate->Convert(next);
}

void Line::Lay(const Segment& ends) {
  X1 = ends.x1;
  Y1 = ends.y1;
  X2 = ends.x2;
  Y2 = ends.y2;
}

Shape::Shape(Container& container, const ObjectName& name, const Rectangle& place, const ShapeLooks& looks)
    : Box(Kind::Shape, container, name, place, looks.visible),
      BorderColor(properties(), looks.borderColor),
      looks_(looks) {}

Shape::Shape(Container& container, const ObjectName& name, const Shape& pattern)
    : Shape(container, name, pattern.Surface(), pattern.looks()) {
  BorderColor = pattern.BorderColor;
}

Image::Image(Container& container, const ObjectName& name, const Rectangle& place, const ImageLooks& looks)
    : Box(Kind::Image, container, name, place, looks.visible),
      Enabled(properties(), looks.enabled),
      looks_(looks) {}

}  // namespace quintara
