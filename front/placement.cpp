#include "front/placement.h"

#include <algorithm>

namespace quintara {
namespace {

// The low end where the two cross.
int Between(int low, int value, int high) {
  return std::max(low, std::min(value, high));
}

}  // namespace

PixelPoint WithinReach(const PixelPoint& place, int width, const PixelRectangle& screens) {
  constexpr int grip = 80;
  constexpr int titleBar = 40;
  return {Between(screens.left + grip - width, place.x, screens.right() - 1 - grip),
          Between(screens.top, place.y, screens.bottom() - 1 - titleBar)};
}

PixelPoint WhollySeen(const PixelPoint& place, const PixelSize& size, const PixelRectangle& screen) {
  return {Between(screen.left, place.x, screen.right() - 1 - size.width),
          Between(screen.top, place.y, screen.bottom() - 1 - size.height)};
}

PixelRectangle ReachingEdges(const PixelRectangle& place, const PixelSize& surface) {
  constexpr int thinStrip = 2;
  const auto reaching = [](int length, int gap) {
    return gap > 0 && gap <= thinStrip ? length + gap : length;
  };
  return {place.left, place.top, reaching(place.width, surface.width - place.right()),
          reaching(place.height, surface.height - place.bottom())};
}

Zoom FittingZoom(const Zoom& wanted, const PixelSize& inner, const PixelRectangle& screen) {
  const double across = static_cast<double>(screen.width - windowFrame.width) / std::max(inner.width, 1);
  const double down = static_cast<double>(screen.height - windowFrame.height) / std::max(inner.height, 1);
  return Zoom(std::min({wanted.factor(), across, down}));
}

}  // namespace quintara
