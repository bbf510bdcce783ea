#include "desktop/keyboard.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractSlider>

namespace quintara::desktop {
namespace {

// Shift and the number pad make no other key of one.
Qt::KeyboardModifiers CommandsOf(const QKeyEvent& event) {
  return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

QAbstractSlider::SliderAction ActionOf(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left: return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
    case Qt::Key_Right: return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp: return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown: return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home: return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End: return QAbstractSlider::SliderToMaximum;
    default: return QAbstractSlider::SliderNoAction;
  }
}

}  // namespace

bool PressesButton(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && !event.isAutoRepeat();
}

bool MoveByKey(QAbstractSlider& bar, const QKeyEvent& event) {
  const auto action = CommandsOf(event) ? QAbstractSlider::SliderNoAction : ActionOf(event.key());
  if (action == QAbstractSlider::SliderNoAction) return false;
  bar.triggerAction(action);
  return true;
}

std::optional<Zoom> ZoomByKey(const Zoom& zoom, const QKeyEvent& event) {
  if (CommandsOf(event) != Qt::ControlModifier) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return zoom.Larger();  // on many keyboards plus is Shift with the key of the equals sign
    case Qt::Key_Minus: return zoom.Smaller();
    case Qt::Key_0: return Zoom();
    default: return std::nullopt;
  }
}

std::string NameOfKey(const QKeyEvent& event) {
  const QKeyCombination pressed(CommandsOf(event), static_cast<Qt::Key>(event.key()));
  return QKeySequence(pressed).toString(QKeySequence::PortableText).toStdString();
}

}  // namespace quintara::desktop
