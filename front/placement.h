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

// The wanted zoom, or the largest at which a window of an inner size fits on the screen with its frame.
Zoom FittingZoom(const Zoom& wanted, const PixelSize& inner, const PixelRectangle& screen);

}  // namespace quintara
