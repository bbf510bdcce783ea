#pragma once

#include "front/pixels.h"

namespace quintara {

// How large windows are shown: from the pixels in which forms are laid out to those of the screen. At a
// factor of 1 they are the same.
class Zoom {
 public:
  constexpr explicit Zoom(double factor = 1) : factor_(factor) {}

  constexpr double factor() const { return factor_; }
  // The next step up or down; the last one stays.
  Zoom Larger() const;
  Zoom Smaller() const;

  int operator()(int length) const { return static_cast<int>(std::lround(length * factor_)); }
  PixelPoint operator()(const PixelPoint& place) const { return {(*this)(place.x), (*this)(place.y)}; }
  // What touches stays touching.
  PixelRectangle operator()(const PixelRectangle& place) const;
  // Every pixel that painting in this place may reach.
  PixelRectangle Around(const PixelRectangle& place) const;

  friend constexpr bool operator==(const Zoom&, const Zoom&) = default;

 private:
  double factor_;
};

}  // namespace quintara
