#include "desktop/text_widget.h"

#include <QtGui/QKeyEvent>

#include <optional>

#include "desktop/appearance.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/form.h"
#include "scene/input.h"

namespace quintara::desktop {
namespace {

// The character code that a key press stands for; nothing for keys that move or command.
std::optional<int> CharacterOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Escape: return 27;
    default: break;
  }
  const auto codes = event.text().toUcs4();
  constexpr uint firstPrintable = 32, deleteCode = 127;
  if (codes.size() != 1 || codes.front() < firstPrintable || codes.front() == deleteCode) return std::nullopt;
  return static_cast<int>(codes.front());
}

bool Commands(const QKeyEvent& event) {
  // Right Alt arrives as Control and Alt together where it makes characters.
  const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier || modifiers == Qt::MetaModifier;
}

}  // namespace

TextWidget::TextWidget(TextBox& box, QWidget& parent, Session& session)
    : QLineEdit(&parent), Control(box, *this, session), box_(box) {
  setPalette(PaletteWith(QPalette::Base, box.looks().backColor, QPalette::Text, box.looks().foreColor));
  FillBehindFrame(*this);
  // Whatever the keys below don't tell: paste, cut, undo, input methods.
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    session_.Run([this, &text] { UserEdits(box_, text.toStdString()); });
  });
}

void TextWidget::ShowLooks() {
  setFont(FontOf(box_, zoom()));
  const QString scene = ToQString(box_.Text.Get());
  if (!typing_ && text() != scene) setText(scene);
}

void TextWidget::keyPressEvent(QKeyEvent* event) {
  const auto character = Commands(*event) ? std::nullopt : CharacterOf(*event);
  if (!character) return QLineEdit::keyPressEvent(event);

  // The Scene adds at the end and takes away there. Anywhere else it is told of the key for its event only,
  // and the widget then works out the text.
  const bool atEnd = !hasSelectedText() && cursorPosition() == text().size();
  typing_ = !atEnd;
  session_.Run([this, &character] { UserTypes(box_, *character); });
  typing_ = false;
  // Escape also closes the window.
  event->setAccepted(event->key() != Qt::Key_Escape);
  if (!atEnd && IsShown(box_)) {
    QLineEdit::keyPressEvent(event);
    session_.Run([this] { UserEdits(box_, text().toStdString()); });
  }
}

}  // namespace quintara::desktop
