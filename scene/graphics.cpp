#include "scene/graphics.h"

#include "scene/container.h"

namespace quintara {
namespace {

LabelLooks HiddenCopy(const Label& pattern) {
  LabelLooks looks = pattern.looks();
  looks.visible = false;
  looks.backColor = pattern.BackColor;
  looks.foreColor = pattern.ForeColor;
  return looks;
}

LineLooks HiddenCopy(const Line& pattern) {
  LineLooks looks = pattern.looks();
  looks.visible = false;
  looks.borderColor = pattern.BorderColor;
  return looks;
}

ShapeLooks HiddenCopy(const Shape& pattern) {
  ShapeLooks looks = pattern.looks();
  looks.visible = false;
  looks.borderColor = pattern.BorderColor;
  return looks;
}

}  // namespace

Label::Label(Container& container, const ObjectName& name, const Rectangle& place, const LabelLooks& looks)
    : Box(Kind::Label, container, name, place, looks.visible),
      Caption(changeCount(), looks.caption),
      BackColor(changeCount(), looks.backColor),
      ForeColor(changeCount(), looks.foreColor),
      place_(place),
      looks_(looks) {}

Label::Label(Container& container, const ObjectName& name, const Label& pattern)
    : Label(container, name, pattern.Surface(), HiddenCopy(pattern)) {
  Caption = pattern.Caption;
}

void Label::Restore() {
  RestoreBox(place_, looks_.visible);
  Caption = looks_.caption;
  BackColor = looks_.backColor;
  ForeColor = looks_.foreColor;
}

Line::Line(Container& container, const ObjectName& name, const Segment& ends, const LineLooks& looks)
    : Object(Kind::Line, container, name),
      X1(changeCount(), Axis::Across, ends.x1, container.scale()),
      Y1(changeCount(), Axis::Down, ends.y1, container.scale()),
      X2(changeCount(), Axis::Across, ends.x2, container.scale()),
      Y2(changeCount(), Axis::Down, ends.y2, container.scale()),
      Visible(changeCount(), looks.visible),
      BorderColor(changeCount(), looks.borderColor),
      ends_(ends),
      looks_(looks) {}

Line::Line(Container& container, const ObjectName& name, const Line& pattern)
    : Line(container, name, pattern.Surface(), HiddenCopy(pattern)) {}

void Line::ConvertPlace(const Scale& from, const Scale& to) {
  for (Coordinate* coordinate : {&X1, &Y1, &X2, &Y2}) coordinate->Place(coordinate->Twips(from), to);
}

void Line::Lay(const Segment& ends) {
  X1 = ends.x1;
  Y1 = ends.y1;
  X2 = ends.x2;
  Y2 = ends.y2;
}

Segment Line::Surface() const {
  const Scale& scale = container()->scale();
  return {X1.Twips(scale), Y1.Twips(scale), X2.Twips(scale), Y2.Twips(scale)};
}

void Line::Restore() {
  const Scale& scale = container()->scale();
  X1.Place(ends_.x1, scale);
  Y1.Place(ends_.y1, scale);
  X2.Place(ends_.x2, scale);
  Y2.Place(ends_.y2, scale);
  Visible = looks_.visible;
  BorderColor = looks_.borderColor;
}

Shape::Shape(Container& container, const ObjectName& name, const Rectangle& place, const ShapeLooks& looks)
    : Box(Kind::Shape, container, name, place, looks.visible),
      BorderColor(changeCount(), looks.borderColor),
      place_(place),
      looks_(looks) {}

Shape::Shape(Container& container, const ObjectName& name, const Shape& pattern)
    : Shape(container, name, pattern.Surface(), HiddenCopy(pattern)) {}

void Shape::Restore() {
  RestoreBox(place_, looks_.visible);
  BorderColor = looks_.borderColor;
}

Image::Image(Container& container, const ObjectName& name, const Rectangle& place, const ImageLooks& looks)
    : Box(Kind::Image, container, name, place, looks.visible),
      Enabled(changeCount(), looks.enabled),
      place_(place),
      looks_(looks) {}

void Image::Restore() {
  RestoreBox(place_, looks_.visible);
  Enabled = looks_.enabled;
}

}  // namespace quintara
