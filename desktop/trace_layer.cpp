#include "desktop/trace_layer.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QRegion>

#include <algorithm>
#include <vector>

#include "desktop/appearance.h"
#include "front/shots.h"
#include "front/trace.h"

namespace quintara::desktop {
namespace {

// How far from the points of a path its line and marks reach.
double ReachOf(const TraceLook& look) {
  constexpr double softEdge = 1;
  return std::max(look.lineWidth / 2, look.markRadius) + look.rimWidth + softEdge;
}

QRect Around(const QRectF& places, double reach) {
  return places.adjusted(-reach, -reach, reach, reach).toAlignedRect();
}

void Stroke(QPainter& painter, const QPolygonF& line, const QPolygonF& marks, const QColor& colour,
            double width, double radius) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  for (const QPointF& mark : marks) painter.drawEllipse(mark, radius, radius);
}

}  // namespace

TraceLayer::TraceLayer(QWidget& profile, const QuintaraForm& form, const ShotWatch& watch)
    : QWidget(&profile), form_(form), watch_(watch) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void TraceLayer::Follow(bool isOn, const Zoom& zoom) {
  const std::span<const Shot> shots = watch_.AtThisTarget();
  if (!isOn || shots.empty()) return Clear();
  const bool fits = !thin_.isNull() && zoom_ == zoom && target_ == watch_.target() &&
                    thin_.size() == parentWidget()->size() * devicePixelRatioF();
  if (fits && changes_ == watch_.changes()) return;
  changes_ = watch_.changes();
  if (!fits) Begin(zoom);
  while (shots_ < shots.size()) {
    if (shots_ > 0) {
      Draw(shots[shots_ - 1]);
      Weaken(shots[shots_ - 1]);
    }
    ++shots_;
    points_ = marks_ = 0;
  }
  Draw(shots.back());
}

void TraceLayer::Clear() {
  if (isHidden()) return;
  hide();
  thin_ = strong_ = {};
}

void TraceLayer::Begin(const Zoom& zoom) {
  zoom_ = zoom;
  target_ = watch_.target();
  shots_ = 0;
  resize(parentWidget()->size());
  thin_ = QPixmap(size() * devicePixelRatioF());
  thin_.setDevicePixelRatio(devicePixelRatioF());
  thin_.fill(Qt::transparent);
  strong_ = thin_;
  raise();
  show();
  update();
}

void TraceLayer::Draw(const Shot& shot) {
  const std::vector<PathPoint> allMarks = MarksOn(shot);
  QPolygonF line, marks;
  constexpr double finest = 2;  // pixels between points; more of them make no smoother line
  for (std::size_t i = points_ == 0 ? 0 : points_ - 1; i < shot.path.size(); ++i) {
    const QPointF place = PlaceOf(shot.path[i]);
    const bool isLast = i + 1 == shot.path.size();
    if (line.empty() || isLast || (place - line.back()).manhattanLength() >= finest) line << place;
  }
  for (; marks_ < allMarks.size(); ++marks_) marks << PlaceOf(allMarks[marks_]);
  points_ = shot.path.size();
  Draw(line, marks, earlierTrace, thin_);
  Draw(line, marks, lastTrace, strong_);
  line.append(marks);
  update(Around(line.boundingRect(), ReachOf(lastTrace) * zoom_.factor()));
}

void TraceLayer::Draw(const QPolygonF& line, const QPolygonF& marks, const TraceLook& look,
                      QPixmap& picture) const {
  const double factor = zoom_.factor(), rim = look.rimWidth * factor;
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect().adjusted(0, zoom_(ToPixels(TopOfTrace(form_))), 0, 0));
  Stroke(painter, line, marks, ToQColor(look.colour), look.lineWidth * factor, look.markRadius * factor);
  // The rim goes behind all that is there already, so that it cuts into no line.
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
  Stroke(painter, line, marks, ToQColor(look.rimColour), look.lineWidth * factor + 2 * rim,
         look.markRadius * factor + rim);
}

void TraceLayer::Weaken(const Shot& shot) {
  const QRegion region = RegionOf(shot);
  QPainter painter(&strong_);
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  for (const QRect& part : region) painter.fillRect(part, Qt::transparent);
  update(region);
}

// The path in boxes that leave out most of what lies beside it.
QRegion TraceLayer::RegionOf(const Shot& shot) const {
  constexpr double longest = 40;
  const double reach = ReachOf(lastTrace) * zoom_.factor();
  QRegion region;
  QPolygonF part;
  for (const PathPoint& point : shot.path) {
    part << PlaceOf(point);
    if ((part.back() - part.front()).manhattanLength() < longest) continue;
    region += Around(part.boundingRect(), reach);
    part = {part.back()};
  }
  return region + Around(part.boundingRect(), reach);
}

QPointF TraceLayer::PlaceOf(const PathPoint& point) const {
  const QuintaraForm::Place place = PlaceOfTrace(form_, point);
  return QPointF(place.x, place.y) / twipsPerPixel * zoom_.factor();
}

void TraceLayer::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double ratio = thin_.devicePixelRatio();
  for (const QRect& part : event->region()) {
    const QRect pixels(part.topLeft() * ratio, part.size() * ratio);
    painter.drawPixmap(part, thin_, pixels);
    painter.drawPixmap(part, strong_, pixels);
  }
}

}  // namespace quintara::desktop
