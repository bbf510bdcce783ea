#pragma once

#include <QtCore/QLine>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>

#include <string_view>

#include "front/pixels.h"

// Places, sizes and texts as Qt has them.

namespace quintara::desktop {

inline QPoint ToQPoint(const PixelPoint& place) {
  return {place.x, place.y};
}
inline QSize ToQSize(const PixelSize& size) {
  return {size.width, size.height};
}
inline QRect ToQRect(const PixelRectangle& place) {
  return {place.left, place.top, place.width, place.height};
}
inline PixelPoint FromQt(const QPoint& place) {
  return {place.x(), place.y()};
}
inline PixelRectangle FromQt(const QRect& place) {
  return {place.left(), place.top(), place.width(), place.height()};
}

inline QLine ToQLine(const Segment& twips) {
  return {ToPixels(twips.x1), ToPixels(twips.y1), ToPixels(twips.x2), ToPixels(twips.y2)};
}

inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace quintara::desktop
