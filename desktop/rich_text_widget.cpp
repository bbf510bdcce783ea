#include "desktop/rich_text_widget.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <functional>
#include <string>

#include "desktop/appearance.h"
#include "desktop/rich_document.h"
#include "desktop/session.h"
#include "scene/input.h"

namespace quintara::desktop {

RichTextWidget::RichTextWidget(RichTextBox& box, QWidget& parent, Session& session)
    : QTextEdit(&parent), Control(box, *this, session), box_(box) {
  setPalette(PaletteWith(QPalette::Base, box.looks().backColor, QPalette::Text, colours::windowText));
  setReadOnly(true);
  setFont(ToQFont(Font{}));
  document()->setDocumentMargin(6);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextWidget::HandInSelection);
}

void RichTextWidget::ShowLooks() {
  const QSignalBlocker quiet(this);
  const std::size_t hash = std::hash<std::string>()(box_.TextRTF);
  if (hash != shown_) {
    shown_ = hash;
    FillDocument(*document(), box_.document());
    moveCursor(QTextCursor::Start);
  }
  ShowSelection();
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
