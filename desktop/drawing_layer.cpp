#include "desktop/drawing_layer.h"

#include <QtGui/QPainter>

#include <algorithm>

#include "desktop/appearance.h"
#include "desktop/units.h"
#include "scene/container.h"

namespace quintara::desktop {
namespace {

QRect PlaceOf(const Dot& dot) {
  const int width = std::max<int>(dot.width, 1);
  return {ToPixels(dot.leftTwips) - width / 2, ToPixels(dot.topTwips) - width / 2, width, width};
}

constexpr int rim = 1;  // pixels around a dot

void PaintSpot(QPainter& painter, const QRect& place, const QColor& colour) {
  constexpr int widestSquare = 2;
  if (place.width() <= widestSquare) {
    painter.fillRect(place, colour);
  } else {
    painter.setBrush(colour);
    painter.drawEllipse(place);
  }
}

// A light rim lets a dot be seen on grass as well as on snow. It goes below all dots, so that neighbours
// don't cover one another.
void PaintDot(QPainter& painter, const Dot& dot, const QRect& place) {
  const QColor light(0xFF, 0xFF, 0xFF, 0xC0);
  PaintSpot(painter, place, ToQColor(dot.colour));
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
  PaintSpot(painter, place.adjusted(-rim, -rim, rim, rim), light);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace

QRect DrawingLayer::Follow(const Container& container, const SurfaceChanges& changes, const QSize& size,
                           const Zoom& zoom, qreal pixelRatio) {
  QRect changed;
  const QSize pixels = size * pixelRatio;
  const auto& dots = container.dots();
  // A layer that changed its size is drawn anew.
  std::size_t next = image_.isNull() || image_.size() != pixels ? 0 : changes.firstNewMark;
  if (changes.wiped || (!image_.isNull() && image_.size() != pixels)) {
    changed = ToQRect(zoom.Around(FromQt(marked_)));
    image_ = {};
    marked_ = {};
  }
  if (next == dots.size() || size.isEmpty()) return changed;

  if (image_.isNull()) {
    image_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    image_.setDevicePixelRatio(pixelRatio);
    image_.fill(Qt::transparent);
  }
  QPainter painter(&image_);
  painter.setPen(Qt::NoPen);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(zoom.factor(), zoom.factor());
  QRect added;
  for (; next < dots.size(); ++next) {
    const QRect place = PlaceOf(dots[next]);
    PaintDot(painter, dots[next], place);
    added |= place.adjusted(-rim, -rim, rim, rim);
  }
  marked_ |= added;
  return changed | ToQRect(zoom.Around(FromQt(added)));
}

void DrawingLayer::Paint(QPainter& painter) const {
  if (!image_.isNull()) painter.drawImage(0, 0, image_);
}

}  // namespace quintara::desktop
