#include "desktop/value_bubble.h"

#include <QtGui/QAccessible>

#include <algorithm>

#include "desktop/appearance.h"

namespace quintara::desktop {

ValueBubble::ValueBubble(QWidget& window) : QLabel(&window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setTextFormat(Qt::PlainText);
  hide();
}

void ValueBubble::ShowAt(const QRect& thumb, Qt::Orientation bar, const QString& text, const Zoom& zoom) {
  constexpr int gap = 6, margin = 3;
  if (text != this->text()) {
    setText(text);
    QAccessibleEvent news(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
  }
  setFont(ToQFont(Font{.bold = true}, zoom));
  setMargin(zoom(margin));
  adjustSize();
  QPoint corner = bar == Qt::Vertical
                      ? QPoint(thumb.left() - zoom(gap) - width(), thumb.center().y() - height() / 2)
                      : QPoint(thumb.center().x() - width() / 2, thumb.top() - zoom(gap) - height());
  const QSize room = window()->size() - size();
  corner.setX(std::clamp(corner.x(), 0, std::max(room.width(), 0)));
  corner.setY(std::clamp(corner.y(), 0, std::max(room.height(), 0)));
  move(corner);
  raise();
  show();
}

}  // namespace quintara::desktop
