#include "desktop/focus_mark.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>

namespace quintara::desktop {
namespace {

bool ShowsItsFocus(const QWidget& widget) {
  return qobject_cast<const QPushButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QTextEdit*>(&widget) != nullptr;
}

}  // namespace

FocusMark::FocusMark(QWidget& window) : QWidget(&window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  connect(qApp, &QApplication::focusChanged, this, &FocusMark::Follow);
}

void FocusMark::Follow() {
  const QWidget* focused = QApplication::focusWidget();
  const bool marks = focused != nullptr && focused != window() && focused->window() == window() &&
                     focused->isVisible() && !ShowsItsFocus(*focused);
  if (marks) {
    setGeometry(QRect(focused->mapTo(window(), QPoint()), focused->size()));
    raise();
  }
  setVisible(marks);
}

// Light dots between dark ones can be seen on every ground.
void FocusMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect frame = rect().adjusted(0, 0, -1, -1);
  painter.setPen(Qt::white);
  painter.drawRect(frame);
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.drawRect(frame);
}

}  // namespace quintara::desktop
