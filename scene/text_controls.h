#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/box.h"
#include "scene/event.h"
#include "text/rich_text.h"

namespace quintara {

struct TextBoxLooks {
  std::string_view text = "";
  Colour backColor = colours::windowBackground;
  Colour foreColor = colours::windowText;
  std::optional<Font> font{};  // the form's where not given
};

// One line of text that the user types, in UTF-8.
class TextBox : public Box {
 public:
  TextBox(Container& container, const ObjectName& name, const Rectangle& place,
          const TextBoxLooks& looks = {});

  Property<std::string> Text;
  // Comes before the key has an effect, with the key's character code.
  Event<std::int16_t> KeyPress;

  // Keys go to this box from now on.
  void SetFocus();

  const TextBoxLooks& looks() const { return looks_; }

 private:
  TextBoxLooks looks_;
};

struct ListBoxLooks {
  Colour backColor = colours::windowBackground;
  Colour foreColor = colours::windowText;
  std::optional<Font> font{};  // the form's where not given
};

// A list of texts in the order in which they were added.
class ListBox : public Box {
 public:
  ListBox(Container& container, const ObjectName& name, const Rectangle& place,
          const ListBoxLooks& looks = {});

  void AddItem(std::string_view text);
  void Clear();
  // A 16-bit count, as the control keeps it: of more items than that, the first 32767 count.
  std::int16_t ListCount() const;
  // Item i, from 0; the empty text where there is none.
  const std::string& List(std::int32_t i) const;

  // Every item, also beyond what ListCount can say.
  const std::vector<std::string>& items() const { return items_; }
  const ListBoxLooks& looks() const { return looks_; }
  void Restore() override;

 private:
  ListBoxLooks looks_;
  std::vector<std::string> items_;
};

struct RichTextBoxLooks {
  bool visible = true;
  Colour backColor = colours::windowBackground;
};

// Shows a document for reading and selecting.
class RichTextBox : public Box {
 public:
  RichTextBox(Container& container, const ObjectName& name, const Rectangle& place,
              const RichTextBoxLooks& looks = {});

  // The whole document as rich text. Writing it takes the selection away.
  ActiveProperty<std::string, RichTextBox> TextRTF;
  Event<> SelChange;

  // Selects a stretch, counted in characters of the plain text and cut to it, and raises SelChange.
  void Select(std::int32_t start, std::int32_t length);
  std::int32_t SelStart() const { return selectionStart_; }
  std::int32_t SelLength() const { return selectionLength_; }
  // The selected stretch of the plain text.
  std::string SelText() const;
  // The document without its looks.
  const std::string& PlainText() const { return plainText_; }
  const RichText& document() const { return document_; }
  // Grows with every other document; changes() also counts selections.
  ChangeCount documentChanges() const { return documentChanges_; }

  const RichTextBoxLooks& looks() const { return looks_; }
  void Restore() override;

 private:
  void WriteTextRTF(std::string rtf);

  RichTextBoxLooks looks_;
  RichText document_;
  std::string plainText_;
  ChangeCount documentChanges_ = 0;
  std::int32_t selectionStart_ = 0;
  std::int32_t selectionLength_ = 0;
};

}  // namespace quintara
