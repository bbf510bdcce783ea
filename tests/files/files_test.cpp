#include "files/files.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class FilesTest : public ::testing::Test {
 protected:
  std::string In(const std::string& name) const { return folder.text() + "\\" + name; }
  std::string Bytes(const std::string& name) const { return folder.Bytes(name); }
  void Put(const std::string& name, const std::string& bytes) const { folder.Put(name, bytes); }
  std::size_t Entries() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
  }

  TemporaryFolder folder;
  DiskFileSystem disk;
  Files files{disk, folder.text()};
};

TEST_F(FilesTest, JoinsNamesWithBackslashesOnEverySystem) {
  EXPECT_EQ(files.Locate(In("Help\\Rules.rtf")).name, "Help\\Rules.rtf");
  EXPECT_EQ(files.Locate(In("Help\\Rules.rtf")).path, folder.path() / "Help" / "Rules.rtf");
  fs::create_directory(folder.path() / "Help");
  Put("Help/Rules.rtf", "rules");
  EXPECT_EQ(files.ReadWhole(In("Help\\Rules.rtf")), "rules");
  EXPECT_EQ(files.ReadWhole(In("Help/Rules.rtf")), "rules");
  EXPECT_EQ(Files(disk, "/").Locate("/\\extra.txt").path, fs::path("/extra.txt"));
  const Files odd(disk, "/a\\b");
  EXPECT_EQ(odd.Locate("/a\\b\\c\\d.txt").path, fs::path("/a\\b/c/d.txt"))
      << "the folder's own name is left alone";
}

TEST_F(FilesTest, StoresARecordAmongOthers) {
  EXPECT_TRUE(files.WriteRecord(In("extra.txt"), 5, "15"));
  EXPECT_TRUE(files.WriteRecord(In("extra.txt"), 2, "a text that is too long"));
  EXPECT_TRUE(files.WriteRecord(In("extra.txt"), 5, "7"));
  EXPECT_EQ(Bytes("extra.txt"), std::string(10, ' ') + "a text tha" + std::string(20, ' ') + "7         ");
  EXPECT_EQ(files.ReadRecord(In("extra.txt"), 5), "7         ");
  Put("extra.txt", std::string(60, 'x'));
  EXPECT_TRUE(files.WriteRecord(In("extra.txt"), 5, "3"));
  EXPECT_EQ(Bytes("extra.txt"), std::string(40, 'x') + "3         " + std::string(10, 'x'));
  fs::permissions(folder.path() / "extra.txt", fs::perms::owner_read);
  EXPECT_TRUE(files.WriteRecord(In("extra.txt"), 5, "3")) << "what is there already need not be written";
  EXPECT_EQ(Entries(), 1u) << "nothing is left beside it";
}

TEST_F(FilesTest, ReadsWhateverLiesInTheRecordFilesPlace) {
  EXPECT_FALSE(files.ReadRecord(In("extra.txt"), 5).has_value());
  Put("extra.txt", "short");
  EXPECT_EQ(files.ReadRecord(In("extra.txt"), 5), "");
  Put("extra.txt", std::string(43, '1'));
  EXPECT_EQ(files.ReadRecord(In("extra.txt"), 5), "111");
  fs::resize_file(folder.path() / "extra.txt", std::uintmax_t{1} << 32);
  EXPECT_EQ(files.ReadRecord(In("extra.txt"), 5)->size(), 10u);
  EXPECT_FALSE(files.WriteRecord(In("extra.txt"), 5, "15")) << "a file of 4 GB is none of ours";
  EXPECT_EQ(fs::file_size(folder.path() / "extra.txt"), std::uintmax_t{1} << 32);
  fs::remove(folder.path() / "extra.txt");
  fs::create_directory(folder.path() / "extra.txt");
  EXPECT_FALSE(files.ReadRecord(In("extra.txt"), 5).has_value());
  EXPECT_FALSE(files.WriteRecord(In("extra.txt"), 5, "15"));
}

TEST_F(FilesTest, ReadsLinesWithAnyLineEnd) {
  EXPECT_FALSE(files.ReadLines(In("Masters.txt")).has_value());
  Put("Masters.txt", "");
  EXPECT_EQ(files.ReadLines(In("Masters.txt")), Lines{});
  Put("Masters.txt", "one\r\n\r\ntwo\rthree\nfour");
  EXPECT_EQ(files.ReadLines(In("Masters.txt")), (Lines{"one", "", "two", "three", "four"}));
  EXPECT_TRUE(files.WriteLines(In("Masters.txt"), {"\xff", "", "b"}));
  EXPECT_EQ(Bytes("Masters.txt"), "\xff\r\n\r\nb\r\n");
  EXPECT_EQ(files.ReadLines(In("Masters.txt")), (Lines{"\xff", "", "b"}));
  fs::permissions(folder.path() / "Masters.txt", fs::perms::owner_read);
  EXPECT_FALSE(files.WriteLines(In("Masters.txt"), {"new"}));
  EXPECT_EQ(Bytes("Masters.txt"), "\xff\r\n\r\nb\r\n") << "a write-protected file is left alone";
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(FilesTest, WritesBesideWhatOthersWriteAndSweepsUpWhatAKilledCopyLeft) {
  const auto save = [&] {
    EXPECT_TRUE(files.WriteLines(In("Masters.txt"), {"whole"}));
    EXPECT_EQ(Bytes("Masters.txt"), "whole\r\n");
  };
  for (int i = 0; i < 30; ++i) Put("Masters.txt.new" + std::to_string(i), "half a li");
  Put("Masters.txt.new36", "behind a small gap");
  save();
  EXPECT_EQ(Entries(), 32u) << "others may be saving now";
  for (const auto& entry : fs::directory_iterator(folder.path())) {
    const auto hourBefore = fs::last_write_time(entry) - std::chrono::hours(1);
    if (entry.path().extension() != ".new7") fs::last_write_time(entry, hourBefore);
  }
  save();
  EXPECT_EQ(Entries(), 32u) << "one of them still may";
  fs::remove(folder.path() / "Masters.txt.new7");
  save();
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(FilesTest, BoundsWhatItReads) {
  Put("big", "");
  fs::resize_file(folder.path() / "big", std::uintmax_t{1} << 36);
  EXPECT_FALSE(files.ReadWhole(In("big")).has_value());
  EXPECT_FALSE(files.ReadLines(In("big")).has_value());
  EXPECT_FALSE(files.ReadWhole(folder.text()).has_value()) << "a folder is no document";
  EXPECT_FALSE(files.ReadWhole("/dev/zero").has_value()) << "nor does a device hang the game";
}

TEST_F(FilesTest, KnowsABitmapByItsHeader) {
  std::string header = "BM" + std::string(28, '\0');
  header[18] = 49;
  header[22] = 37;
  Put("good.bmp", header);
  Put("short.bmp", header.substr(0, 20));
  header.replace(22, 4, "\xDB\xFF\xFF\xFF");  // its rows are stored from the top down
  Put("high.bmp", header);
  header[21] = 127;
  Put("huge.bmp", header);
  EXPECT_TRUE(files.IsBitmap(In("good.bmp")) && files.IsBitmap(In("high.bmp")));
  for (const char* name : {"missing.bmp", "short.bmp", "huge.bmp"})
    EXPECT_FALSE(files.IsBitmap(In(name))) << name;
}

}  // namespace
}  // namespace quintara
