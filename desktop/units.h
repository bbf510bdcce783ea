#pragma once

#include <QtCore/QLine>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>

#include <algorithm>
#include <string_view>

#include "scene/looks.h"
#include "scene/scale.h"

// From the Scene's twips and texts to the pixels and strings of the windows.

namespace quintara::desktop {

// The nearest pixel. What lies far outside every screen, or is no number, stays at a place that painting can
// still count with.
inline int ToPixels(double twips) {
  constexpr double farOut = 16000;
  const double pixels = twips / twipsPerPixel;
  return pixels > -farOut ? qRound(std::min(pixels, farOut)) : qRound(-farOut);
}

inline double ToTwips(int pixels) {
  return pixels * twipsPerPixel;
}

// Place and size are rounded apart, so that nothing changes its size while it moves.
inline QRect ToPixels(const Rectangle& twips) {
  return {ToPixels(twips.left), ToPixels(twips.top), std::max(ToPixels(twips.width), 0),
          std::max(ToPixels(twips.height), 0)};
}

inline QLine ToPixels(const Segment& twips) {
  return {ToPixels(twips.x1), ToPixels(twips.y1), ToPixels(twips.x2), ToPixels(twips.y2)};
}

inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace quintara::desktop
