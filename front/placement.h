#pragma once

#include "front/zoom.h"

// Where windows stand on the screen.

namespace quintara {

// What the frame of a window adds to its inner size, on most systems somewhat less.
inline constexpr PixelSize windowFrame{8, 40};

// The nearest place of a window at which the user can take hold of its title bar, on screens that together
// leave this room.
PixelPoint WithinReach(const PixelPoint& place, int width, const PixelRectangle& screens);

// The nearest place at which a window of an outer size can be seen whole.
PixelPoint WhollySeen(const PixelPoint& place, const PixelSize& size, const PixelRectangle& screen);

// The place of a box on a surface of this size. One that ends a pixel or two before the surface's right or
// lower edge reaches it: whatever lies behind would show as a thin strip.
PixelRectangle ReachingEdges(const PixelRectangle& place, const PixelSize& surface);

// The wanted zoom, or the largest at which a window of an inner size fits on the screen with its frame.
Zoom FittingZoom(const Zoom& wanted, const PixelSize& inner, const PixelRectangle& screen);

}  // namespace quintara
