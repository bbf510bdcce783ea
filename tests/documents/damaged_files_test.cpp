// Files that a bad disk, a broken download or a stray key in an editor has damaged: every beginning of each
// file that the program reads, and every byte of it changed, go through their readers.

#include <gtest/gtest.h>

#include "tests/documents/words.h"
#include "tests/support/memory_disk.h"
#include "tests/support/rich_text_faults.h"

namespace quintara {
namespace {

// The lines of a text, each with its line end.
std::vector<std::string> LinesWithEnds(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size(); at += lines.back().size()) {
    lines.push_back(text.substr(at, text.find('\n', at) - at + 1));
  }
  return lines;
}

// Calls `check` for every way in which one byte is damaged, with the damaged text and the place.
template <typename Damages, typename Check>
void DamageEachByte(const std::string& whole, std::size_t from, std::size_t length, Damages damages,
                    Check check) {
  std::string damaged = whole;
  for (std::size_t at = from; at < from + length; ++at) {
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

class DamagedDocument : public ::testing::TestWithParam<words::Document> {
 protected:
  const std::string whole = words::Source(GetParam().file);
};

TEST_P(DamagedDocument, IsReadFromEveryBeginning) {
  const std::string text = ReadRichText(whole).PlainText();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const RichText document = ReadRichText(whole.substr(0, length));
    ASSERT_EQ(FaultOf(document), "") << length;
    if (length < 5) continue;  // no document yet
    // What a cut through an escape leaves of it may be shown as two characters, of up to four bytes each.
    const std::string shown = document.PlainText();
    const std::size_t certain = shown.size() - std::min<std::size_t>(shown.size(), 8);
    ASSERT_EQ(text.compare(0, certain, shown, 0, certain), 0) << length << ": " << shown;
  }
}

// A line of our documents is a paragraph with all of its layout, so each is read without the rest: behind
// the tables of fonts and colours, a paragraph that must not suffer and the next line. The whole document
// each time would take minutes.
TEST_P(DamagedDocument, IsReadWithAnyByteDamaged) {
  const std::vector<std::string> lines = LinesWithEnds(whole);
  std::size_t tables = 0;
  while (tables < lines.size() && !lines[tables].starts_with("\\pard")) ++tables;
  ASSERT_LT(tables, lines.size());
  std::string head;
  for (std::size_t i = 0; i < tables; ++i) head += lines[i];
  DamageEachByte(
      head + lines[tables] + "}", 0, head.size(), FlippedAndMeaningful,
      [](const std::string& damaged, std::size_t) { ASSERT_EQ(FaultOf(ReadRichText(damaged)), ""); });
  const std::string before = head + "{unharmed}\\par\n";
  for (std::size_t i = tables; i < lines.size(); ++i) {
    const std::string after = i + 1 < lines.size() ? lines[i + 1] : "";
    DamageEachByte(before + lines[i] + after + "}", before.size(), lines[i].size(), FlippedAndMeaningful,
                   [](const std::string& damaged, std::size_t) {
                     const RichText document = ReadRichText(damaged);
                     ASSERT_EQ(FaultOf(document), "");
                     ASSERT_TRUE(document.PlainText().starts_with("unharmed"));
                   });
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, DamagedDocument, ::testing::ValuesIn(words::documents),
                         [](const auto& document) {
                           return words::fs::path(document.param.file).stem().string();
                         });

struct PlatformInMemory : RecordingPlatform {
  PlatformInMemory() : RecordingPlatform("/quintara") { disk = &memory; }

  MemoryDisk memory;
};

// A started game over a disk in memory.
class DamagedFile : public ::testing::Test {
 protected:
  DamagedFile() { program.Start(); }

  // Hands every beginning of the file, and the file with any byte damaged in any way, to `check`.
  template <typename Check>
  void DamageInEveryWay(const std::string& whole, Check check) {
    for (std::size_t length = 0; length <= whole.size(); ++length) {
      check(whole.substr(0, length), length);
      if (HasFatalFailure()) FAIL() << "cut to " << length << " bytes";
    }
    DamageEachByte(whole, 0, whole.size(), AllBytes, check);
  }

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
  DamageInEveryWay(whole, [&](const std::string& bytes, std::size_t) {
    platform.memory.written["/quintara/Masters.txt"] = bytes;
    form.Unload();
    form.Show();
    const std::vector<std::string>& shown = form.List1.items();
    const auto before = Alike(names.begin(), names.end(), shown.begin(), shown.end());
    const auto behind = Alike(names.rbegin(), names.rend(), shown.rbegin(), shown.rend());
    // A damaged line end makes one line of two.
    ASSERT_TRUE(bytes.size() < whole.size() || before + behind + 2 >= std::ssize(names)) << bytes;
    UserTypes(form.Text1, 13);
    const std::vector<std::string> saved = form.List1.items();
    form.Unload();
    form.Show();
    ASSERT_EQ(form.List1.items(), saved);
  });
}

TEST_F(DamagedFile, TheRecordFileGivesASettingInRange) {
  const std::string before(40, ' '), setting = "7         ";
  QuintaraForm& form = program.quintara();
  DamageInEveryWay(before + setting + "another   ", [&](const std::string& bytes, std::size_t at) {
    platform.memory.written["/quintara/extra.txt"] = bytes;
    form.cmdMagnify.Enabled = true;
    UserClicks(form.cmdMagnify);
    const std::int16_t taken = form.HScroll1.Value;
    const bool isWhole = at >= before.size() + setting.size() || (at < before.size() && bytes.size() > at);
    ASSERT_TRUE(taken >= 1 && taken <= 15) << taken;
    ASSERT_TRUE(taken == 7 || !isWhole) << taken;
  });
}

}  // namespace
}  // namespace quintara
