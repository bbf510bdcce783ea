#include "desktop/trace_layer.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QPolygonF>

#include <algorithm>
#include <vector>

#include "desktop/appearance.h"
#include "front/shots.h"
#include "front/trace.h"

namespace quintara::desktop {
namespace {

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
  const QSize size = parentWidget()->size();
  const bool isFresh = picture_.isNull() || zoom_ != zoom || target_ != watch_.target() ||
                       shots_ != shots.size() || picture_.size() != size * devicePixelRatioF();
  if (!isFresh && changes_ == watch_.changes()) return;
  changes_ = watch_.changes();
  if (isFresh) {
    resize(size);
    zoom_ = zoom;
    target_ = watch_.target();
    shots_ = shots.size();
    points_ = marks_ = 0;
    picture_ = QPixmap(size * devicePixelRatioF());
    picture_.setDevicePixelRatio(devicePixelRatioF());
    picture_.fill(Qt::transparent);
    for (const Shot& shot : shots.first(shots.size() - 1)) {
      std::size_t points = 0, marks = 0;
      DrawShot(shot, earlierTrace, points, marks);
    }
    raise();
    show();
    update();
  }
  DrawShot(shots.back(), lastTrace, points_, marks_);
}

void TraceLayer::Clear() {
  if (isHidden()) return;
  hide();
  picture_ = {};
}

// Draws what is beyond so many points and marks, and counts them on.
void TraceLayer::DrawShot(const Shot& shot, const TraceLook& look, std::size_t& points, std::size_t& marks) {
  const std::vector<PathPoint> allMarks = MarksOn(shot);
  QPolygonF line, freshMarks;
  for (std::size_t i = points == 0 ? 0 : points - 1; i < shot.path.size(); ++i) line << PlaceOf(shot.path[i]);
  for (; marks < allMarks.size(); ++marks) freshMarks << PlaceOf(allMarks[marks]);
  points = shot.path.size();

  const double factor = zoom_.factor();
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect().adjusted(0, zoom_(ToPixels(TopOfTrace(form_))), 0, 0));
  Stroke(painter, line, freshMarks, ToQColor(look.colour), look.lineWidth * factor, look.markRadius * factor);
  // The rim goes behind all that is there already, so that it cuts into no line.
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
  const double rim = look.rimWidth * factor;
  Stroke(painter, line, freshMarks, ToQColor(look.rimColour), look.lineWidth * factor + 2 * rim,
         look.markRadius * factor + rim);
  const double reach = std::max(look.lineWidth, look.markRadius) * factor + rim + 1;
  line.append(freshMarks);
  update(line.boundingRect().adjusted(-reach, -reach, reach, reach).toAlignedRect());
}

QPointF TraceLayer::PlaceOf(const PathPoint& point) const {
  const QuintaraForm::Place place = PlaceOfTrace(form_, point);
  return QPointF(place.x, place.y) / twipsPerPixel * zoom_.factor();
}

void TraceLayer::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double ratio = picture_.devicePixelRatio();
  for (const QRect& part : event->region())
    painter.drawPixmap(part, picture_, QRect(part.topLeft() * ratio, part.size() * ratio));
}

}  // namespace quintara::desktop
