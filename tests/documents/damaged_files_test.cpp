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

// A line of our documents is a paragraph with all of its layout. So each is damaged without the rest: behind
// the tables of fonts and colours and a paragraph that must not suffer. Reading the whole document each time
// would take minutes.
class DamagedDocument : public ::testing::TestWithParam<std::string> {
 protected:
  DamagedDocument() {
    std::size_t tables = 0;
    while (tables < lines.size() && !lines[tables].starts_with("\\pard")) head += lines[tables++];
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(tables));
  }

  const std::string whole = words::Source(GetParam());
  std::string head;                                       // up to the first paragraph
  std::vector<std::string> lines = LinesWithEnds(whole);  // the paragraphs
  const std::string unharmed = "{unharmed}\\par\n";
};

// What a cut through an escape leaves of it may be shown as two characters, of up to four bytes each.
void ExpectBeginning(const std::string& beginning, const std::string& text) {
  const RichText document = ReadRichText(beginning);
  ASSERT_EQ(FaultOf(document), "") << beginning;
  const std::string shown = document.PlainText();
  const std::size_t certain = shown.size() - std::min<std::size_t>(shown.size(), 8);
  ASSERT_EQ(text.compare(0, certain, shown, 0, certain), 0) << beginning << "\nshows\n" << shown;
}

TEST_P(DamagedDocument, IsReadFromEveryBeginning) {
  ASSERT_FALSE(lines.empty());
  const std::string text = ReadRichText(whole).PlainText();
  for (std::size_t length = 0; length < head.size(); ++length) {
    ASSERT_EQ(FaultOf(ReadRichText(head.substr(0, length))), "") << length;
  }
  std::string linesBefore = head;
  for (const std::string& line : lines) {
    ASSERT_TRUE(text.starts_with(ReadRichText(linesBefore).PlainText())) << "a line hangs on later ones";
    linesBefore += line;
    const std::string lineText = ReadRichText(head + unharmed + line).PlainText();
    for (std::size_t length = 0; length < line.size(); ++length) {
      ExpectBeginning(head + unharmed + line.substr(0, length), lineText);
      if (HasFatalFailure()) return;
    }
  }
}

TEST_P(DamagedDocument, IsReadWithAnyByteDamaged) {
  DamageEachByte(
      head + unharmed + "}", 0, head.size(), FlippedAndMeaningful,
      [](const std::string& damaged, std::size_t) { ASSERT_EQ(FaultOf(ReadRichText(damaged)), ""); });
  const std::string before = head + unharmed;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string after = i + 1 < lines.size() ? lines[i + 1] : "";
    DamageEachByte(before + lines[i] + after + "}", before.size(), lines[i].size(), FlippedAndMeaningful,
                   [](const std::string& damaged, std::size_t) {
                     const RichText document = ReadRichText(damaged);
                     ASSERT_EQ(FaultOf(document), "");
                     ASSERT_TRUE(document.PlainText().starts_with("unharmed"));
                   });
  }
}

std::vector<std::string> DocumentFiles() {
  std::vector<std::string> files;
  for (const words::Document& document : words::documents) files.emplace_back(document.file);
  return files;
}

INSTANTIATE_TEST_SUITE_P(Shipped, DamagedDocument, ::testing::ValuesIn(DocumentFiles()),
                         [](const auto& file) { return words::fs::path(file.param).stem().string(); });

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
