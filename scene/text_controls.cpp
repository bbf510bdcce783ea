#include "scene/text_controls.h"

#include <algorithm>
#include <limits>

#include "scene/form.h"
#include "text/utf8.h"

namespace quintara {

TextBox::TextBox(Container& container, const ObjectName& name, const Rectangle& place,
                 const TextBoxLooks& looks)
    : Box(Kind::TextBox, container, name, place), Text(properties(), looks.text), looks_(looks) {}

void TextBox::SetFocus() {
  form().MoveFocus(this);
}

ListBox::ListBox(Container& container, const ObjectName& name, const Rectangle& place,
                 const ListBoxLooks& looks)
    : Box(Kind::ListBox, container, name, place), looks_(looks) {}

void ListBox::AddItem(std::string_view text) {
  items_.emplace_back(text);
  properties().CountChange();
}

void ListBox::Clear() {
  items_.clear();
  properties().CountChange();
}

std::int16_t ListBox::ListCount() const {
  constexpr std::size_t most = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::min(items_.size(), most));
}

const std::string& ListBox::List(std::int32_t i) const {
  static const std::string none;
  return i >= 0 && static_cast<std::size_t>(i) < items_.size() ? items_[static_cast<std::size_t>(i)] : none;
}

void ListBox::Restore() {
  Object::Restore();
  Clear();
}

RichTextBox::RichTextBox(Container& container, const ObjectName& name, const Rectangle& place,
                         const RichTextBoxLooks& looks)
    : Box(Kind::RichTextBox, container, name, place, looks.visible),
      TextRTF(properties(), "", *this, &RichTextBox::WriteTextRTF),
      looks_(looks) {}

void RichTextBox::WriteTextRTF(std::string rtf) {
  document_ = ReadRichText(rtf);
  plainText_ = document_.PlainText();
  selectionStart_ = selectionLength_ = 0;
  if (rtf != TextRTF.Get()) ++documentChanges_;
  TextRTF.Keep(std::move(rtf));
  properties().CountChange();  // the same document again still takes the selection away
}

void RichTextBox::Select(std::int32_t start, std::int32_t length) {
  const auto characters = static_cast<std::int32_t>(CharacterCount(plainText_));
  selectionStart_ = std::clamp(start, 0, characters);
  selectionLength_ = std::clamp(length, 0, characters - selectionStart_);
  properties().CountChange();
  SelChange.Raise();
}

std::string RichTextBox::SelText() const {
  return CharacterSlice(plainText_, static_cast<std::size_t>(selectionStart_),
                        static_cast<std::size_t>(selectionLength_));
}

void RichTextBox::Restore() {
  // Written before it is restored, so that it is seen to be another document.
  TextRTF = "";
  Object::Restore();
}

}  // namespace quintara
