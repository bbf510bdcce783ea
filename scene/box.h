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
  void ConvertPlace(const Scale& from, const Scale& to) override;

  // The rectangle in twips on the container's surface.
  Rectangle Surface() const;

 protected:
  Box(Kind kind, Container& container, const ObjectName& name, const Rectangle& place, bool visible);
  void RestoreBox(const Rectangle& place, bool visible);
};

}  // namespace quintara
