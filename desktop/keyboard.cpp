#include "desktop/keyboard.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QKeySequence>

namespace quintara::desktop {
namespace {

// Shift and the number pad make no other key of one.
Qt::KeyboardModifiers CommandsOf(const QKeyEvent& event) {
  return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

}  // namespace

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool PressesButton(const QKeyEvent& event) {
  return IsEnter(event) && !event.isAutoRepeat();
}

std::optional<BarMove> MoveByKey(const QKeyEvent& event) {
  if (CommandsOf(event)) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Right: return BarMove::StepUp;
    case Qt::Key_Down:
    case Qt::Key_Left: return BarMove::StepDown;
    case Qt::Key_PageUp: return BarMove::PageUp;
    case Qt::Key_PageDown: return BarMove::PageDown;
    case Qt::Key_Home: return BarMove::Lowest;
    case Qt::Key_End: return BarMove::Highest;
    default: return std::nullopt;
  }
}

std::optional<char> CharacterByKey(const QKeyEvent& event) {
  const QString text = CommandsOf(event) ? QString() : event.text();
  if (text.size() != 1 || !text.front().isPrint()) return std::nullopt;
  return text.front().toLatin1();
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
