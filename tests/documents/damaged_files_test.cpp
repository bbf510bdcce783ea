// Files that a bad disk, a broken download or a stray key in an editor has damaged: every beginning of each
// file that the program reads, and every byte of it changed, go through their readers.

#include <gtest/gtest.h>

#include "fuzz/rich_text_order.h"
#include "tests/documents/words.h"
#include "tests/support/memory_disk.h"

namespace quintara {
namespace {

// Hands every beginning of a text, and the text with each byte damaged in each of these ways, to `check`,
// with the place of the damage.
template <typename Damages, typename Check>
void DamageInEveryWay(const std::string& whole, Damages damages, Check check) {
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    check(whole.substr(0, length), length);
    if (::testing::Test::HasFatalFailure()) FAIL() << "cut to " << length << " bytes";
  }
  std::string damaged = whole;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : damages(whole[at])) {
      damaged[at] = byte;
      check(damaged, at);
      if (::testing::Test::HasFatalFailure()) FAIL() << "byte " << at << " became " << int{byte};
    }
    damaged[at] = whole[at];
  }
}

// Each bit the other way, and the bytes that mean something to the reader.
std::string FlippedAndMeaningful(char byte) {
  std::string bytes("{}\\\0", 4);
  for (int bit = 0; bit < 8; ++bit) bytes += static_cast<char>(byte ^ (1 << bit));
  return bytes;
}

std::string AllBytes(char) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

// A line of our documents is a paragraph with all of its layout. So each is damaged without the rest: behind
// the tables of fonts and colours and a paragraph that must not suffer, and before the next one. Reading the
// whole document each time would take minutes.
TEST(DamagedDocument, LosesTheDamagedParagraphAtMost) {
  for (const words::Document& document : words::documents) {
    SCOPED_TRACE(document.file);
    const std::string source = words::Source(document.file);
    const std::size_t start = source.find("\n\\pard") + 1;
    const std::string head = source.substr(0, start) + "{unharmed}\\par\n";
    std::size_t next = 0;
    for (std::size_t at = start; at < source.size(); at = next) {
      next = std::min(source.find('\n', at), source.size() - 1) + 1;
      const std::string after = source.substr(next, source.find('\n', next) - next) + "}";
      DamageInEveryWay(source.substr(at, next - at), FlippedAndMeaningful,
                       [&](const std::string& damaged, std::size_t) {
                         const RichText read = ReadRichText(head + damaged + after);
                         ASSERT_EQ(FaultOf(read), "");
                         ASSERT_TRUE(read.PlainText().starts_with("unharmed"));
                       });
      if (HasFatalFailure()) return;
    }
  }
}

struct PlatformInMemory : RecordingPlatform {
  PlatformInMemory() : RecordingPlatform("/quintara") { disk = &memory; }
  MemoryDisk memory;
};

// A started game over a disk in memory.
class DamagedFile : public ::testing::Test {
 protected:
  DamagedFile() { program.Start(); }

  PlatformInMemory platform;
  Program program{platform};
};

// How many lines two lists have in common, counted from one of their ends.
template <typename Iterator>
std::ptrdiff_t Alike(Iterator first, Iterator last, Iterator otherFirst, Iterator otherLast) {
  return std::mismatch(first, last, otherFirst, otherLast).first - first;
}

TEST_F(DamagedFile, TheListOfMastersLosesOneEntryAtMost) {
  const std::vector<std::string> names{"Ada - Grand Master of Quintara", "",
                                       "Zo\xC3\xAB - Master of Quintara"};
  std::string whole;
  for (const std::string& name : names) whole += name + "\r\n";
  MastersForm& form = program.masters();
  DamageInEveryWay(whole, AllBytes, [&](const std::string& bytes, std::size_t) {
    platform.memory.written["/quintara/Masters.txt"] = bytes;
    form.Unload();
    form.Show();
    const std::vector<std::string>& shown = form.list.items();
    const auto before = Alike(names.begin(), names.end(), shown.begin(), shown.end());
    const auto behind = Alike(names.rbegin(), names.rend(), shown.rbegin(), shown.rend());
    // A damaged line end makes one line of two.
    ASSERT_TRUE(bytes.size() < whole.size() || before + behind + 2 >= std::ssize(names)) << bytes;
    UserTypes(form.nameBox, 13);
    const std::vector<std::string> saved = form.list.items();
    form.Unload();
    form.Show();
    ASSERT_EQ(form.list.items(), saved);
  });
}

TEST_F(DamagedFile, TheRecordFileGivesASettingInRange) {
  const std::string before(40, ' '), setting = "7         ";
  QuintaraForm& form = program.quintara();
  DamageInEveryWay(before + setting + "another   ", AllBytes, [&](const std::string& bytes, std::size_t at) {
    platform.memory.written["/quintara/extra.txt"] = bytes;
    form.magnifyButton.Enabled = true;
    UserClicks(form.magnifyButton);
    const std::int16_t taken = form.flightTimeBar.Value;
    const bool isWhole = at >= before.size() + setting.size() || (at < before.size() && bytes.size() > at);
    ASSERT_TRUE(taken >= 1 && taken <= 15) << taken;
    ASSERT_TRUE(taken == 7 || !isWhole) << taken;
  });
}

}  // namespace
}  // namespace quintara
