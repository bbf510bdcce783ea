#include "desktop/overlay_file_system.h"

#include <gtest/gtest.h>

#include <map>

#include "desktop/program_folders.h"
#include "files/files.h"
#include "tests/support/recording_platform.h"

namespace quintara::desktop {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Contents = std::map<std::string, std::string>;

Contents ContentsOf(const fs::path& folder) {
  Contents contents;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder))
    contents[entry.path().filename().string()] =
        entry.is_regular_file() ? BytesOf(entry.path()) : "(a folder)";
  return contents;
}

// A game that was installed, and a player who has not played it yet.
class OverlayTest : public testing::Test {
 protected:
  OverlayTest() {
    fs::create_directory(data);
    Put(data / "Masters.txt", "Ann\r\nBob\r\n");
    Put(data / "Readme.rtf", "read me");
  }

  TemporaryFolder folder;
  const fs::path data = folder.path() / "data";
  const fs::path own = folder.path() / "share" / "quintara";
  OverlayFileSystem disk{data, own};
  Files files{disk, data.string()};
  const std::string masters = data.string() + "\\Masters.txt";
  const std::string extra = data.string() + "\\extra.txt";
};

TEST_F(OverlayTest, WhatIsWrittenIsThePlayersOwn) {
  const Contents shipped = ContentsOf(data);
  EXPECT_EQ(files.ReadLines(masters), (Lines{"Ann", "Bob"}));
  EXPECT_EQ(files.ReadRecord(extra, 5), std::nullopt);
  EXPECT_FALSE(fs::exists(own));

  ASSERT_TRUE(files.WriteLines(masters, {"Ann", "Bob", "Cleo"}));
  ASSERT_TRUE(files.WriteRecord(extra, 5, "7"));
  EXPECT_EQ(files.ReadLines(masters), (Lines{"Ann", "Bob", "Cleo"}));
  EXPECT_EQ(files.ReadRecord(extra, 5), "7         ");
  EXPECT_EQ(ContentsOf(data), shipped);
  EXPECT_EQ(files.ReadWhole(data.string() + "\\Readme.rtf"), "read me");
  Put(own / "Readme.rtf", "not this one");
  EXPECT_EQ(files.ReadWhole(data.string() + "\\Readme.rtf"), "read me");
}

TEST_F(OverlayTest, WritesOverFilesThatAreShippedWriteProtected) {
  Put(data / "extra.txt", "1         2         ");
  for (const char* name : {"Masters.txt", "extra.txt"})
    fs::permissions(data / name, fs::perms::owner_read | fs::perms::group_read);
  EXPECT_TRUE(files.WriteRecord(extra, 2, "3"));
  EXPECT_EQ(ContentsOf(own)["extra.txt"], "1         3         ");
  disk.MakeOwnList();
  EXPECT_EQ(ContentsOf(own)["Masters.txt"], "Ann\r\nBob\r\n") << "the first start makes the list";
  EXPECT_TRUE(files.WriteLines(masters, {"Cleo"}));
  OverlayFileSystem(data, own).MakeOwnList();
  EXPECT_EQ(files.ReadLines(masters), (Lines{"Cleo"})) << "later ones leave it";

  fs::remove_all(own);
  fs::remove(data / "Masters.txt");
  disk.MakeOwnList();
  EXPECT_FALSE(fs::exists(own));
}

TEST_F(OverlayTest, WithoutAFolderOfTheirOwnThePlayerReadsAndIsToldOfEachSave) {
  Put(own.parent_path(), "a file where the folder should be");
  const Contents shipped = ContentsOf(data);
  disk.MakeOwnList();
  EXPECT_FALSE(files.WriteLines(masters, {"Cleo"}));
  EXPECT_FALSE(files.WriteRecord(extra, 5, "7"));
  EXPECT_EQ(ContentsOf(data), shipped);
}

TEST_F(OverlayTest, ASaveLeavesThatOfAnotherCopyAlone) {
  fs::create_directories(own);
  Put(own / "Masters.txt.new0", "half a li");
  disk.MakeOwnList();
  EXPECT_TRUE(files.WriteLines(masters, {"Cleo"}));
  EXPECT_EQ(ContentsOf(own), (Contents{{"Masters.txt", "Cleo\r\n"}, {"Masters.txt.new0", "half a li"}}));

  // What stands in the way of the last step leaves the old list and nothing beside it.
  fs::remove_all(own);
  fs::create_directories(own / "Masters.txt");
  EXPECT_FALSE(files.WriteLines(masters, {"Dora"}));
  EXPECT_FALSE(disk.Create(data / "Masters.txt", ""));
  EXPECT_EQ(ContentsOf(own).size(), 1u);
}

TEST_F(OverlayTest, OneFolderForAllIsUsedAsItIs) {
  OverlayFileSystem plain(data, data);
  plain.MakeOwnList();
  const Files beside(plain, data.string());
  EXPECT_TRUE(beside.WriteRecord(extra, 1, "7"));
  EXPECT_EQ(
      ContentsOf(data),
      (Contents{{"Masters.txt", "Ann\r\nBob\r\n"}, {"Readme.rtf", "read me"}, {"extra.txt", "7         "}}));
}

TEST(ProgramFoldersTest, AreWhereTheProgramWasBuiltUnpackedOrInstalled) {
  const TemporaryFolder folder;
  const QString root = QString::fromStdString(folder.text());
  const auto found = [&] {
    const ProgramFolders folders = FindFolders(root + "/bin", "../share/quintara/data", "/home/own");
    return QString(folders.data + " " + folders.own).remove(root + "/").toStdString();
  };
  fs::create_directories(folder.path() / "bin");
  EXPECT_EQ(found(), "bin/data /home/own") << "none there";
  fs::create_directories(folder.path() / "share/quintara/data");
  EXPECT_EQ(found(), "share/quintara/data /home/own");
  const fs::path beside = folder.path() / "bin/data";
  fs::create_directories(beside);
  EXPECT_EQ(found(), "bin/data bin/data");

  fs::permissions(beside, fs::perms::owner_write, fs::perm_options::remove);
  const bool writesAnyway = std::ofstream(beside / "try").good();
  EXPECT_EQ(found(), writesAnyway ? "bin/data bin/data" : "bin/data /home/own");
  fs::permissions(beside, fs::perms::owner_write, fs::perm_options::add);
}

}  // namespace
}  // namespace quintara::desktop
