#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quintara {

// One piece of an RTF document.
struct RichTextToken {
  enum class Kind {
    End,         // of the document
    GroupStart,  // {
    GroupEnd,    // }
    Word,        // \word, perhaps with a number
    Symbol,      // a backslash and one character that is no letter
    Byte,        // one byte of text, written as it is or as \'hh
  };

  Kind kind = Kind::End;
  unsigned char byte = 0;     // of a Symbol or Byte
  std::string_view word;      // the letters of a Word, as long as the document has them
  std::optional<int> number;  // of a Word, within a milliard to either side of zero
};

// Cuts an RTF document into tokens. Line ends and zero bytes between them mean nothing and are left out, as
// is the data behind \bin. A damaged \'hh comes as the Symbol '\'' and what follows it as text.
class RichTextTokens {
 public:
  // The document must outlive this object and the tokens.
  explicit RichTextTokens(std::string_view rtf) : rtf_(rtf) {}

  // The next token; at the end of the document, and ever after, End.
  RichTextToken Next();

 private:
  RichTextToken AfterBackslash();
  RichTextToken ReadWord();
  std::optional<int> ReadNumber();

  std::string_view rtf_;
  std::size_t position_ = 0;
};

}  // namespace quintara
