#include "desktop/graphics_painter.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPen>

#include <algorithm>
#include <cmath>

#include "desktop/appearance.h"
#include "desktop/pictures.h"
#include "desktop/units.h"
#include "front/caption_lines.h"
#include "scene/visit.h"

namespace quintara::desktop {
namespace {

QPen PenFor(Colour colour, int width, BorderStyle style) {
  if (style == BorderStyle::None || width <= 0) return Qt::NoPen;
  QPen pen(ToQColor(colour), width);
  pen.setJoinStyle(Qt::MiterJoin);
  if (style == BorderStyle::Dotted) {
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({3, 3});
  } else {
    pen.setCapStyle(width > 1 ? Qt::RoundCap : Qt::SquareCap);
  }
  return pen;
}

QRect AreaOf(const Line& line) {
  const QLine ends = ToQLine(line.Surface());
  const int reach = line.looks().borderWidth / 2 + 2;
  return QRect(ends.p1(), ends.p2()).normalized().adjusted(-reach, -reach, reach, reach);
}

QRect AreaOf(const Image& image, Pictures& pictures) {
  const QRect place = ToQRect(ToPixels(image.Surface()));
  return image.looks().stretch ? place
                               : QRect(place.topLeft(), pictures.Embedded(image.looks().picture).size());
}

// A sunken edge of one pixel.
void PaintFrame(QPainter& painter, const QRect& place) {
  painter.setPen(QColor(0x80, 0x80, 0x80));
  painter.drawLine(place.topLeft(), place.topRight());
  painter.drawLine(place.topLeft(), place.bottomLeft());
  painter.setPen(Qt::white);
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  painter.drawLine(place.topRight(), place.bottomRight());
}

// The share of the free room that lies before a line.
double ShareBefore(Alignment alignment) {
  return alignment == Alignment::Left ? 0 : alignment == Alignment::Right ? 1 : 0.5;
}

void Paint(QPainter& painter, const Label& label) {
  const LabelLooks& looks = label.looks();
  const QRect place = ToQRect(ToPixels(label.Surface()));
  painter.setClipRect(place, Qt::IntersectClip);
  if (looks.backStyle == BackStyle::Opaque) painter.fillRect(place, ToQColor(label.BackColor));
  if (looks.framed) PaintFrame(painter, place);

  const QRect inner = looks.framed ? place.adjusted(2, 1, -2, -1) : place;
  QFont font = FontOf(label);
  const QFontMetricsF wanted(font);
  const auto measure = [&wanted](std::string_view text) { return wanted.horizontalAdvance(ToQString(text)); };
  const FittedCaption caption =
      FitCaption(label.Caption.Get(), measure, wanted.height(), inner.width(), inner.height());
  if (caption.stretch != 100) font.setStretch(caption.stretch);
  const QFontMetricsF metrics(font);
  painter.setFont(font);
  painter.setPen(ToQColor(label.ForeColor));
  qreal baseline = inner.top() + std::round(metrics.ascent());
  for (const std::string& text : caption.lines) {
    const QString line = ToQString(text);
    const qreal room = std::max(inner.width() - metrics.horizontalAdvance(line), 0.0);
    painter.drawText(QPointF(inner.left() + ShareBefore(looks.alignment) * room, baseline), line);
    baseline += std::round(metrics.height());
  }
}

void Paint(QPainter& painter, const Line& line) {
  const LineLooks& looks = line.looks();
  const QLine ends = ToQLine(line.Surface());
  painter.setPen(PenFor(line.BorderColor, looks.borderWidth, looks.borderStyle));
  // Upright and level lines fill whole pixels; only a slanted one is smoothed, through the pixels' centres.
  const bool slanted = ends.dx() != 0 && ends.dy() != 0;
  painter.setRenderHint(QPainter::Antialiasing, slanted);
  if (slanted) painter.translate(0.5, 0.5);
  painter.drawLine(ends);
}

void Paint(QPainter& painter, const Shape& shape) {
  const ShapeLooks& looks = shape.looks();
  const bool rectangle = looks.shape == ShapeKind::Rectangle;
  QRectF place = ToQRect(ToPixels(shape.Surface()));
  if (looks.shape == ShapeKind::Circle) {
    const qreal side = std::min(place.width(), place.height());
    place =
        QRectF(place.x() + (place.width() - side) / 2, place.y() + (place.height() - side) / 2, side, side);
  }
  painter.setPen(PenFor(shape.BorderColor, looks.borderWidth, looks.borderStyle));
  painter.setBrush(Qt::NoBrush);
  if (looks.backStyle == BackStyle::Opaque) painter.setBrush(ToQColor(looks.backColor));
  if (looks.fillStyle == FillStyle::Solid) painter.setBrush(ToQColor(looks.fillColor));
  painter.setRenderHint(QPainter::Antialiasing);
  // The border lies inside the rectangle.
  const qreal inset = looks.borderStyle == BorderStyle::None ? 0 : looks.borderWidth / 2.0;
  place.adjust(inset, inset, -inset, -inset);
  if (rectangle) {
    painter.drawRect(place);
  } else {
    painter.drawEllipse(place);
  }
}

void Paint(QPainter& painter, const Image& image, Pictures& pictures) {
  // In the pixels of the window, so that the picture is scaled once and stays sharp.
  const QRect area = AreaOf(image, pictures);
  QRect place = painter.worldTransform().mapRect(QRectF(area)).toRect();
  // One that fills its box reaches the box's edge, which may have been rounded to another pixel.
  const Container& box = *image.container();
  const QPaintDevice& surface = *painter.device();
  if (area.x() + area.width() >= ToPixels(box.InnerWidth()))
    place.setRight(std::max(place.right(), surface.width() - 1));
  if (area.y() + area.height() >= ToPixels(box.InnerHeight()))
    place.setBottom(std::max(place.bottom(), surface.height() - 1));
  painter.resetTransform();
  const qreal ratio = painter.device()->devicePixelRatioF();
  if (place.isEmpty()) return;
  // One that can be clicked is a button, and looks it; the others are pictures.
  const bool isOff = image.Click.bound() && !image.IsEnabled();
  const QSize size = place.size() * ratio;
  const std::string_view name = image.looks().picture;
  painter.drawPixmap(place, isOff ? pictures.Off(name, size) : pictures.Scaled(name, size));
}

}  // namespace

QRect PaintedArea(const Object& object, Pictures& pictures) {
  return Visit(
      object, [](const Line& line) { return AreaOf(line); },
      [&](const Image& image) { return AreaOf(image, pictures); },
      [](const Box& box) { return ToQRect(ToPixels(box.Surface())); }, [](const Object&) { return QRect(); });
}

void PaintObject(QPainter& painter, const Object& object, Pictures& pictures) {
  painter.save();
  Visit(
      object, [&](const Label& label) { Paint(painter, label); },
      [&](const Line& line) { Paint(painter, line); }, [&](const Shape& shape) { Paint(painter, shape); },
      [&](const Image& image) { Paint(painter, image, pictures); }, [](const Object&) {});
  painter.restore();
}

}  // namespace quintara::desktop
