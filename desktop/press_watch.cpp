#include "desktop/press_watch.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

namespace quintara::desktop {

PressWatch::PressWatch(const AssistanceTable& table) : presses_(table) {
  clock_.start();
  qApp->installEventFilter(this);
}

bool PressWatch::eventFilter(QObject*, QEvent* event) {
  // When it happened: on a busy machine the window learns of it later. What a program sends has no such time.
  const auto timeOf = [this](const QInputEvent& input) {
    return input.timestamp() != 0 ? static_cast<Presses::Time>(input.timestamp()) : clock_.elapsed();
  };
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      presses_.ButtonGoesDown(timeOf(static_cast<QInputEvent&>(*event)));
      break;
    case QEvent::KeyPress: {
      const auto& key = static_cast<QKeyEvent&>(*event);
      presses_.KeyGoesDown(key.key(), timeOf(key), key.isAutoRepeat());
      break;
    }
    case QEvent::KeyRelease: {
      const auto& key = static_cast<QKeyEvent&>(*event);
      if (!key.isAutoRepeat()) presses_.KeyComesUp(key.key(), timeOf(key));
      break;
    }
    default: break;
  }
  return false;
}

bool PressWatch::Counts(const Object& control) {
  return presses_.Counts(control, QApplication::doubleClickInterval());
}

}  // namespace quintara::desktop
