#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "host/session.h"
#include "program/program.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A game of six hits that ends on the list of masters, and one of six misses straight after it, every chance
// queued. The transcript holds each reply and the whole state at the end; renew it, after a change that is
// meant, with quintara-host FOLDER <two_games.script >two_games.transcript, FOLDER being a fresh copy of the
// data folder.
TEST(TwoGames, ArePlayedToTheLastByte) {
  TemporaryFolder folder;
  fs::copy(fs::path(PROJECT_FOLDER) / "data" / "Graphics", folder.path() / "Graphics");
  std::ostringstream out;
  HostPlatform platform{folder.path(), out};
  Program program{platform};
  Session session{program.scene(), platform, out, [&program] { program.Start(); }};
  std::ifstream script(fs::path(PROJECT_FOLDER) / "tests" / "host" / "two_games.script");
  session.Run(script);

  std::istringstream played(out.str());
  std::istringstream kept(BytesOf(fs::path(PROJECT_FOLDER) / "tests" / "host" / "two_games.transcript"));
  std::string playedLine, keptLine;
  for (int line = 1; std::getline(kept, keptLine); ++line) {
    std::getline(played, playedLine);
    ASSERT_EQ(playedLine, keptLine) << "line " << line;
  }
  EXPECT_FALSE(std::getline(played, playedLine)) << "more was printed: " << playedLine;
  EXPECT_EQ(BytesOf(folder.path() / "Masters.txt"), "Ada Lovelace - Grand Master of Quintara\r\n");
}

}  // namespace
}  // namespace quintara::host
