#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/box.h"
#include "scene/event.h"
#include "scene/looks.h"

// The graphical objects: they are painted on their container's surface and have none of their own.

namespace quintara {

struct LabelLooks {
  bool visible = true;
  std::string_view caption = "";
  Alignment alignment = Alignment::Left;
  BackStyle backStyle = BackStyle::Opaque;
  bool framed = false;
  Colour backColor = colours::buttonFace;
  Colour foreColor = colours::buttonText;
  std::optional<Font> font{};  // the form's where not given
};

// A text, wrapped at blanks to fit its width; every blank is kept.
class Label : public Box {
 public:
  Label(Container& container, const ObjectName& name, const Rectangle& place, const LabelLooks& looks = {});
  // A copy of a pattern as it looks now.
  Label(Container& container, const ObjectName& name, const Label& pattern);

  Property<std::string> Caption;
  Property<Colour> BackColor;
  Property<Colour> ForeColor;

  const LabelLooks& looks() const { return looks_; }
  bool IsGraphical() const override { return true; }

 private:
  LabelLooks looks_;
};

struct LineLooks {
  bool visible = true;
  Colour borderColor = colours::windowText;
  int borderWidth = 1;  // pixels
  BorderStyle borderStyle = BorderStyle::Solid;
};

// A straight line between two points. A hidden one keeps its ends and is read like any other.
class Line : public Object {
 public:
  Line(Container& container, const ObjectName& name, const Segment& ends, const LineLooks& looks = {});
  // A copy of a pattern as it looks now.
  Line(Container& container, const ObjectName& name, const Line& pattern);

  Coordinate X1, Y1, X2, Y2;
  Property<bool> Visible;
  Property<Colour> BorderColor;

  const LineLooks& looks() const { return looks_; }
  bool IsVisible() const override { return Visible; }
  bool IsGraphical() const override { return true; }
  void ConvertPlace(const Scale& next) override;
  // Writes both ends, in the scale of the container.
  void Lay(const Segment& ends);
  // The ends in twips on the container's surface.
  Segment Surface() const { return {X1.Twips(), Y1.Twips(), X2.Twips(), Y2.Twips()}; }

 private:
  LineLooks looks_;
};

struct ShapeLooks {
  bool visible = true;
  ShapeKind shape = ShapeKind::Rectangle;
  Colour borderColor = colours::windowText;
  int borderWidth = 1;  // pixels
  BorderStyle borderStyle = BorderStyle::Solid;
  FillStyle fillStyle = FillStyle::Transparent;
  Colour fillColor = 0x00000000;
  BackStyle backStyle =
      BackStyle::Transparent;  // an opaque one is filled with BackColor where it has no solid fill
  Colour backColor = colours::windowBackground;
};

// A rectangle, an oval, or the largest circle that fits its rectangle, centred.
class Shape : public Box {
 public:
  Shape(Container& container, const ObjectName& name, const Rectangle& place, const ShapeLooks& looks = {});
  // A copy of a pattern as it looks now.
  Shape(Container& container, const ObjectName& name, const Shape& pattern);

  Property<Colour> BorderColor;

  const ShapeLooks& looks() const { return looks_; }
  bool IsGraphical() const override { return true; }
  bool TakesMouse() const override { return false; }

 private:
  ShapeLooks looks_;
};

struct ImageLooks {
  std::string_view picture = "";  // the name of an embedded picture
  bool stretch = false;           // drawn into the rectangle; otherwise at the picture's own size
  bool visible = true;
  bool enabled = true;
};

// A picture. A disabled one is drawn as usual but takes no mouse input.
class Image : public Box {
 public:
  Image(Container& container, const ObjectName& name, const Rectangle& place, const ImageLooks& looks);

  Property<bool> Enabled;
  Event<> Click;
  Event<> MouseMove;

  const ImageLooks& looks() const { return looks_; }
  bool IsEnabled() const override { return Enabled; }
  bool IsGraphical() const override { return true; }
  const Event<>* ClickEvent() const override { return &Click; }
  const Event<>* MouseMoveEvent() const override { return &MouseMove; }

 private:
  ImageLooks looks_;
};

}  // namespace quintara
