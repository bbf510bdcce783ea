#include "text/rich_text_builder.h"

#include <utility>

#include "text/utf8.h"

namespace quintara {

void RichTextBuilder::Put(char32_t character, const RichTextLook& look) {
  const bool control = character < 0x20 || character == 0x7F;
  if (control && character != '\t' && character != '\n') return;
  std::vector<RichTextRun>& runs = current_.runs;
  if (runs.empty() || (runCount_ < richTextMaxRuns && runs.back().look != look)) {
    runs.push_back({{}, look});
    ++runCount_;
  }
  AppendUtf8(runs.back().text, character);
}

void RichTextBuilder::EndParagraph(const RichTextFormat& format) {
  if (document_.paragraphs.size() + 1 < richTextMaxParagraphs) {
    Close(format);
  } else {
    Put('\n', HasText() ? current_.runs.back().look : RichTextLook{});
  }
}

RichText RichTextBuilder::Finish(const RichTextFormat& format) {
  if (HasText()) Close(format);
  return std::move(document_);
}

void RichTextBuilder::Close(const RichTextFormat& format) {
  current_.format = format;
  document_.paragraphs.push_back(std::move(current_));
  current_ = {};
}

}  // namespace quintara
