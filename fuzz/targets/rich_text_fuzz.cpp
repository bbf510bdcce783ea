// The reader of the help documents: any bytes give a document that can be shown, cut and copied.

#include "fuzz/bytes.h"
#include "fuzz/require.h"
#include "fuzz/rich_text_order.h"
#include "text/utf8.h"

namespace quintara::fuzz {
namespace {

void RequireValidUtf8(std::string_view text) {
  std::string again;
  for (std::size_t at = 0; at < text.size();) AppendUtf8(again, ReadUtf8(text, at));
  Require(again == text, "the text is valid UTF-8");
}

// What a selection copies: wherever the text is cut, nothing is lost and nothing comes twice.
void RequireSlices(const std::string& text, std::size_t cut) {
  const std::size_t count = CharacterCount(text);
  Require(count <= text.size(), "no character without a byte");
  const std::size_t first = count == 0 ? 0 : cut % (count + 1);
  const std::string before = CharacterSlice(text, 0, first);
  Require(CharacterCount(before) == first, "a slice is as long as was asked for");
  Require(before + CharacterSlice(text, first, count) == text, "two slices make the whole");
}

void Check(std::string_view source) {
  const RichText document = ReadRichText(source);
  const std::string fault = FaultOf(document);
  Require(fault.empty(), "the document is sound", fault);
  const std::string text = document.PlainText();
  RequireValidUtf8(text);
  for (const std::string& font : document.fonts) RequireValidUtf8(font);
  RequireSlices(text, source.size());
  RequireSlices(std::string(source), source.size() / 2);
}

}  // namespace
}  // namespace quintara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quintara::fuzz::Check(quintara::fuzz::AsText(data, size));
  return 0;
}
