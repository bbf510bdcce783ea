#include "scene/container.h"

#include <algorithm>

namespace quintara {

Container::Container(Object& self, Properties& properties, const Looks& looks)
    : DrawWidth(properties, looks.drawWidth),
      BackColor(properties, looks.backColor),
      ForeColor(properties, looks.foreColor),
      self_(self),
      startScale_(looks.scale),
      scale_(startScale_) {}

void Container::RestoreSurface() {
  Cls();
  // The children are given their start places in this scale next, so they need no conversion here.
  scale_ = startScale_;
}

void Container::Rescale(const Scale& scale) {
  if (scale_.unitAcross != scale.unitAcross || scale_.unitDown != scale.unitDown) {
    for (Object* child : children_) child->ConvertPlace(scale);
  }
  scale_ = scale;
}

void Container::PSet(double x, double y) {
  PSet(x, y, ForeColor);
}

void Container::PSet(double x, double y, Colour colour) {
  const double left = x * scale_.unitAcross;
  const double top = y * scale_.unitDown;
  const double reach = DrawWidth * twipsPerPixel / 2;
  // Most of the marks that lie outside belong to a shell on its way down below the ground.
  const bool inside =
      top - reach < InnerHeight() && top + reach > 0 && left - reach < InnerWidth() && left + reach > 0;
  if (inside) dots_.push_back({x, y, left, top, colour, DrawWidth});
}

void Container::Cls() {
  dots_.clear();
  ++wipes_;
}

void Container::JoinInFrontOfItsKind(Object& child) {
  const auto sameKind = [&](const Object* other) { return other->kind() == child.kind(); };
  children_.insert(std::find_if(children_.begin(), children_.end(), sameKind), &child);
  ++childrenChanges_;
}

void Container::Leave(Object& child) {
  std::erase(children_, &child);
  ++childrenChanges_;
}

}  // namespace quintara
