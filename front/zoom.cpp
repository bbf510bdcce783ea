#include "front/zoom.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quintara {
namespace {

constexpr double zoomSteps[] = {0.75, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};

}  // namespace

Zoom Zoom::Larger() const {
  const auto* next = std::upper_bound(std::begin(zoomSteps), std::end(zoomSteps), factor_);
  return Zoom(next == std::end(zoomSteps) ? factor_ : *next);
}

Zoom Zoom::Smaller() const {
  const auto* from = std::lower_bound(std::begin(zoomSteps), std::end(zoomSteps), factor_);
  return Zoom(from == std::begin(zoomSteps) ? factor_ : *std::prev(from));
}

PixelRectangle Zoom::operator()(const PixelRectangle& place) const {
  const int left = (*this)(place.left), top = (*this)(place.top);
  return {left, top, (*this)(place.right()) - left, (*this)(place.bottom()) - top};
}

PixelRectangle Zoom::Around(const PixelRectangle& place) const {
  if (factor_ == 1 || place.width <= 0 || place.height <= 0) return place;
  constexpr int softEdge = 1;
  const auto before = [this](int at) { return static_cast<int>(std::floor(at * factor_)) - softEdge; };
  const auto behind = [this](int at) { return static_cast<int>(std::ceil(at * factor_)) + softEdge; };
  const int left = before(place.left), top = before(place.top);
  return {left, top, behind(place.right()) - left, behind(place.bottom()) - top};
}

}  // namespace quintara
