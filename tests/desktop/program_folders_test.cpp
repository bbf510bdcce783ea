#include "desktop/program_folders.h"

#include <gtest/gtest.h>

#include "tests/support/recording_platform.h"

namespace quintara::desktop {
namespace {

namespace fs = std::filesystem;

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
