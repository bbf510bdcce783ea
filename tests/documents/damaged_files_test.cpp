// Documents that a bad disk, a broken download or a stray key in an editor has damaged. The list of masters
// and the record are left to fuzz/lines_fuzz.cpp and fuzz/records_fuzz.cpp.

#include <gtest/gtest.h>

#include "tests/documents/words.h"
#include "tests/support/rich_text_faults.h"

namespace quintara {
namespace {

// Each bit the other way, and the bytes that mean something to the reader.
std::string FlippedAndMeaningful(char byte) {
  std::string bytes("{}\\\0", 4);
  for (int bit = 0; bit < 8; ++bit) bytes += static_cast<char>(byte ^ (1 << bit));
  return bytes;
}

void ExpectOthersUnharmed(const std::string& source) {
  const RichText document = ReadRichText(source);
  ASSERT_EQ(FaultOf(document), "") << source;
  ASSERT_TRUE(document.PlainText().starts_with("unharmed")) << source;
}

// A line of our documents is a paragraph with all of its layout. So each is damaged without the rest: behind
// the tables of fonts and colours and a paragraph that must not suffer, and before the next one. Reading the
// whole document each time would take minutes.
TEST(DamagedDocument, LosesTheDamagedParagraphAtMost) {
  for (const words::Document& document : words::documents) {
    const std::string source = words::Source(document.file);
    const std::size_t start = source.find("\n\\pard") + 1;
    const std::string head = source.substr(0, start) + "{unharmed}\\par\n";
    for (std::size_t at = start; at < source.size(); ++at) {
      const std::size_t line = source.rfind('\n', at - 1) + 1;
      const std::size_t nextLine = source.find('\n', source.find('\n', at) + 1);
      std::string damaged = source.substr(line, nextLine - line) + "}";
      ExpectOthersUnharmed(head + damaged.substr(0, at - line));
      for (const char byte : FlippedAndMeaningful(source[at])) {
        damaged[at - line] = byte;
        ExpectOthersUnharmed(head + damaged);
      }
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace quintara
