#include "desktop/strip_button.h"

#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainterPath>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

#include "desktop/keyboard.h"

namespace quintara::desktop {
namespace {

constexpr int signSize = 16;  // across, at a zoom of 1

// The signs are drawn with the pen and brush that are set.

// A shell at the end of its path.
void DrawTraceSign(QPainter& painter) {
  QPainterPath path(QPointF(1.5, 13.5));
  path.quadTo(QPointF(7, -7.5), QPointF(12.75, 8.5));
  painter.drawEllipse(QPointF(13, 10), 1.75, 1.75);
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
}

void DrawSoundSign(QPainter& painter, bool isMute) {
  painter.drawPolygon(QPolygonF({{1.5, 6}, {4.5, 6}, {8, 2.5}, {8, 13.5}, {4.5, 10}, {1.5, 10}}));
  if (isMute) {
    painter.drawLine(QPointF(10.5, 5.5), QPointF(15, 10.5));
    painter.drawLine(QPointF(10.5, 10.5), QPointF(15, 5.5));
    return;
  }
  painter.setBrush(Qt::NoBrush);
  constexpr int degree = 16, opening = 50 * degree;
  for (const double radius : {3.5, 6.5})
    painter.drawArc(QRectF(8 - radius, 8 - radius, 2 * radius, 2 * radius), -opening, 2 * opening);
}

// The four corners of a screen.
void DrawFullScreenSign(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  for (const double side : {-1.0, 1.0}) {
    for (const double end : {-1.0, 1.0}) {
      const QPointF corner(8 + side * 5.5, 8 + end * 5);
      painter.drawPolyline(
          QPolygonF({corner - QPointF(side * 3.5, 0), corner, corner - QPointF(0, end * 3.5)}));
    }
  }
}

void DrawSign(QPainter& painter, StripSign sign, bool isChecked) {
  switch (sign) {
    case StripSign::Trace: return DrawTraceSign(painter);
    case StripSign::Sound: return DrawSoundSign(painter, isChecked);
    case StripSign::FullScreen: return DrawFullScreenSign(painter);
    case StripSign::Plus: painter.drawLine(QPointF(8, 3.5), QPointF(8, 12.5)); [[fallthrough]];
    case StripSign::Minus: return painter.drawLine(QPointF(3.5, 8), QPointF(12.5, 8));
    case StripSign::Menu:
      for (const double height : {4.0, 8.0, 12.0}) painter.drawLine(QPointF(3, height), QPointF(13, height));
  }
}

}  // namespace

StripButton::StripButton(QAction& action, StripSign sign, QWidget& strip) : QToolButton(&strip), sign_(sign) {
  setDefaultAction(&action);
  setAccessibleName(action.text().section('\t', 0, 0));  // without the key
  setFocusPolicy(Qt::TabFocus);
  setAutoRaise(true);
}

void StripButton::Follow(const Zoom& zoom) {
  if (zoom_ == zoom) return;
  zoom_ = zoom;
  update();
}

void StripButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.icon = {};
  option.text.clear();
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  painter.setRenderHint(QPainter::Antialiasing);
  const double factor = zoom_.factor();
  const double sunk = isDown() || isChecked() ? 1 : 0;
  painter.translate((width() - signSize * factor) / 2 + sunk, (height() - signSize * factor) / 2 + sunk);
  painter.scale(factor, factor);
  const QColor colour = palette().color(QPalette::ButtonText);
  painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(colour);
  DrawSign(painter, sign_, isChecked());
}

void StripButton::keyPressEvent(QKeyEvent* event) {
  if (PressesButton(*event)) return click();
  QToolButton::keyPressEvent(event);
}

}  // namespace quintara::desktop
