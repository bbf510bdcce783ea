#include "desktop/rich_text_widget.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/rich_document.h"
#include "desktop/session.h"
#include "front/coverage.h"
#include "scene/input.h"

namespace quintara::desktop {

RichTextWidget::RichTextWidget(RichTextBox& box, QWidget& parent, Session& session)
    : QTextEdit(&parent), Control(box, *this, session), box_(box) {
  setPalette(PaletteWith(QPalette::Base, box.looks().backColor, QPalette::Text, colours::windowText));
  FillBehindFrame(*this);
  setReadOnly(true);
  // With a cursor that keys move, and with which they select.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextWidget::HandInSelection);
}

// Who opens a document is about to read it: its keys work at once.
void RichTextWidget::Follow(const Zoom& shown) {
  Control::Follow(shown);
  if (isVisibleTo(window()) && std::exchange(opens_, false)) setFocus(Qt::OtherFocusReason);
}

void RichTextWidget::ShowLooks() {
  const QSignalBlocker quiet(this);
  setViewportMargins(0, 0, 0, zoom()(ToPixels(CoveredAtItsEnd(box_))));
  ShowDocument();
  ShowSelection();
}

void RichTextWidget::ShowDocument() {
  const bool another = std::exchange(shown_, box_.documentChanges()) != box_.documentChanges();
  const bool zoomed = std::exchange(shownAt_, zoom()) != zoom();
  if (!another && !zoomed) return;
  opens_ = opens_ || (another && !box_.PlainText().empty());
  constexpr int margin = 6;
  const QScrollBar& bar = *verticalScrollBar();
  const double read = another ? 0 : bar.value() / std::max<double>(bar.maximum(), 1);
  setFont(ToQFont(Font{}, zoom()));
  document()->setDocumentMargin(zoom()(margin));
  FillDocument(*document(), box_.document(), zoom());
  moveCursor(QTextCursor::Start);
  verticalScrollBar()->setValue(qRound(read * bar.maximum()));
}

void RichTextWidget::keyPressEvent(QKeyEvent* event) {
  QTextEdit::keyPressEvent(event);
  // The window may have a button for copying.
  if (event->matches(QKeySequence::Copy)) event->ignore();
}

void RichTextWidget::HandInSelection() {
  const int start = CharactersBefore(textCursor().selectionStart());
  const int end = CharactersBefore(textCursor().selectionEnd());
  session_.Run([this, start, end] { UserSelects(box_, start, end - start); });
}

void RichTextWidget::ShowSelection() {
  const int start = PositionOf(box_.SelStart());
  const int end = PositionOf(box_.SelStart() + box_.SelLength());
  QTextCursor cursor = textCursor();
  // A selection that is there already keeps the end from which the user draws it.
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  if (start == end && !cursor.hasSelection()) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

// The Scene counts whole characters, Qt counts units of 16 bits, of which some characters take two.
int RichTextWidget::CharactersBefore(int position) const {
  int characters = 0;
  for (int i = 0; i < position; ++i) {
    if (!document()->characterAt(i).isLowSurrogate()) ++characters;
  }
  return characters;
}

int RichTextWidget::PositionOf(int characters) const {
  int position = 0;
  const int end = document()->characterCount() - 1;
  for (; position < end; ++position) {
    if (!document()->characterAt(position).isLowSurrogate() && characters-- == 0) break;
  }
  return position;
}

}  // namespace quintara::desktop
