#pragma once

#include <cstddef>

#include "text/rich_text.h"

namespace quintara {

// Gathers characters into the runs and paragraphs of a document, within the limits on their number.
class RichTextBuilder {
 public:
  // Adds a character to the current paragraph. Control characters other than '\t' and '\n' are dropped.
  void Put(char32_t character, const RichTextLook& look);

  // Ends the current paragraph, even an empty one. Once the document has all the paragraphs it may have, this
  // only breaks the line.
  void EndParagraph(const RichTextFormat& format);

  // Whether the current paragraph has any text yet.
  bool HasText() const { return !current_.runs.empty(); }

  // Ends the current paragraph if it has text and hands the document over. The builder is of no use
  // afterwards.
  RichText Finish(const RichTextFormat& format);

 private:
  void Close(const RichTextFormat& format);

  RichText document_;
  RichTextParagraph current_;
  std::size_t runCount_ = 0;
};

}  // namespace quintara
