#pragma once

#include "scene/coordinate.h"
#include "scene/looks.h"
#include "scene/object.h"

namespace quintara {

// What every control with a rectangle has: its place in its container, in the scale of that container.
class Box : public Object {
 public:
  Coordinate Left, Top, Width, Height;
  Property<bool> Visible;

  bool IsVisible() const override { return Visible; }
  bool TakesMouse() const override { return IsEnabled(); }
  void ConvertPlace(const Scale& next) override;

  // The rectangle in twips on the container's surface.
  Rectangle Surface() const { return {Left.Twips(), Top.Twips(), Width.Twips(), Height.Twips()}; }

 protected:
  Box(Kind kind, Container& container, const ObjectName& name, const Rectangle& place, bool visible = true);
};

}  // namespace quintara
