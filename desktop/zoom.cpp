#include "desktop/zoom.h"

#include <QtCore/QRectF>

#include <algorithm>
#include <iterator>

namespace quintara::desktop {
namespace {

constexpr double steps[] = {0.75, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};

}  // namespace

Zoom Zoom::Larger() const {
  const auto* next = std::upper_bound(std::begin(steps), std::end(steps), factor_);
  return Zoom(next == std::end(steps) ? factor_ : *next);
}

Zoom Zoom::Smaller() const {
  const auto* from = std::lower_bound(std::begin(steps), std::end(steps), factor_);
  return Zoom(from == std::begin(steps) ? factor_ : *std::prev(from));
}

QRect Zoom::operator()(const QRect& place) const {
  const QPoint end = place.topLeft() + QPoint(place.width(), place.height());
  const QPoint first = (*this)(place.topLeft()), last = (*this)(end);
  return {first, QSize(last.x() - first.x(), last.y() - first.y())};
}

QRect Zoom::Around(const QRect& place) const {
  if (factor_ == 1 || place.isEmpty()) return place;
  constexpr int softEdge = 1;
  const QRectF shown(QPointF(place.topLeft()) * factor_, QSizeF(place.size()) * factor_);
  return shown.toAlignedRect().adjusted(-softEdge, -softEdge, softEdge, softEdge);
}

}  // namespace quintara::desktop
