#include "text/rich_text.h"

#include "text/rich_text_builder.h"
#include "text/rich_text_reader.h"
#include "text/utf8.h"

namespace quintara {

namespace {

RichText ReadPlainText(std::string_view text) {
  RichTextBuilder builder;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t character = ReadUtf8(text, position);
    if (character != '\r' && character != '\n') {
      builder.Put(character, {});
      continue;
    }
    if (character == '\r' && position < text.size() && text[position] == '\n') ++position;
    builder.EndParagraph({});
  }
  return builder.Finish({});
}

}  // namespace

std::string RichText::PlainText() const {
  std::string text;
  for (const RichTextParagraph& paragraph : paragraphs) {
    if (&paragraph != &paragraphs.front()) text += '\n';
    for (const RichTextRun& run : paragraph.runs) text += run.text;
  }
  return text;
}

RichText ReadRichText(std::string_view rtf) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  std::string_view input = rtf.substr(0, richTextMaxInput);
  if (input.starts_with(byteOrderMark)) input.remove_prefix(byteOrderMark.size());
  return input.starts_with("{\\rtf") ? RichTextReader(input).Read() : ReadPlainText(input);
}

}  // namespace quintara
