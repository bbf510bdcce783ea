#include "front/players_files.h"

#include <gtest/gtest.h>

#include <map>

#include "files/files.h"
#include "tests/support/recording_platform.h"

namespace quintara {
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
class PlayersFilesTest : public testing::Test {
 protected:
  PlayersFilesTest() {
    fs::create_directory(data);
    Put(data / "Masters.txt", "Ann\r\nBob\r\n");
    Put(data / "Readme.rtf", "read me");
  }

  TemporaryFolder folder;
  const fs::path data = folder.path() / "data";
  const fs::path own = folder.path() / "share" / "quintara";
  PlayersFiles disk{data, own};
  Files files{disk, data.string()};
  const std::string masters = data.string() + "\\Masters.txt";
  const std::string extra = data.string() + "\\extra.txt";
};

TEST_F(PlayersFilesTest, WhatIsWrittenIsThePlayersOwn) {
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

TEST_F(PlayersFilesTest, WritesOverFilesThatAreShippedWriteProtected) {
  Put(data / "extra.txt", "1         2         ");
  for (const char* name : {"Masters.txt", "extra.txt"})
    fs::permissions(data / name, fs::perms::owner_read | fs::perms::group_read);
  EXPECT_TRUE(files.WriteRecord(extra, 2, "3"));
  EXPECT_EQ(ContentsOf(own)["extra.txt"], "1         3         ");
  disk.MakeOwnList();
  EXPECT_EQ(ContentsOf(own)["Masters.txt"], "Ann\r\nBob\r\n") << "the first start makes the list";
  EXPECT_TRUE(files.WriteLines(masters, {"Cleo"}));
  PlayersFiles(data, own).MakeOwnList();
  EXPECT_EQ(files.ReadLines(masters), (Lines{"Cleo"})) << "later ones leave it";

  fs::remove_all(own);
  fs::remove(data / "Masters.txt");
  disk.MakeOwnList();
  EXPECT_FALSE(fs::exists(own));
}

TEST_F(PlayersFilesTest, WithoutAFolderOfTheirOwnThePlayerReadsAndIsToldOfEachSave) {
  Put(own.parent_path(), "a file where the folder should be");
  const Contents shipped = ContentsOf(data);
  disk.MakeOwnList();
  EXPECT_FALSE(files.WriteLines(masters, {"Cleo"}));
  EXPECT_FALSE(files.WriteRecord(extra, 5, "7"));
  EXPECT_EQ(ContentsOf(data), shipped);
}

TEST_F(PlayersFilesTest, ASaveLeavesThatOfAnotherCopyAlone) {
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

}  // namespace
}  // namespace quintara
