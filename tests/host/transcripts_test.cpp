#include <gtest/gtest.h>

#include <sstream>

#include "host/command_loop.h"
#include "program/program.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {
namespace {

namespace fs = std::filesystem;

// Plays NAME.script on a fresh data folder, every chance queued, and holds each line against NAME.transcript.
// Renew that, after a change that is meant, with quintara-host FOLDER <NAME.script >NAME.transcript, FOLDER
// being a fresh copy of the data folder.
void ExpectTranscript(const fs::path& dataFolder, const std::string& name) {
  const fs::path scripts = PROJECT_FOLDER "/tests/host";
  fs::copy(PROJECT_FOLDER "/data/Graphics", dataFolder / "Graphics");
  std::ostringstream out;
  HostPlatform platform{dataFolder, out};
  Program program{platform};
  CommandLoop loop{program.scene(), platform, out, [&program] { program.Start(); }};
  std::ifstream script(scripts / (name + ".script"));
  loop.Run(script);

  std::istringstream played(out.str());
  std::istringstream kept(BytesOf(scripts / (name + ".transcript")));
  std::string playedLine, keptLine;
  for (int line = 1; std::getline(kept, keptLine); ++line) {
    std::getline(played, playedLine);
    ASSERT_EQ(playedLine, keptLine) << "line " << line;
  }
  EXPECT_FALSE(std::getline(played, playedLine)) << "more was printed: " << playedLine;
}

// A game of six hits that ends on the list of masters, and one of six misses straight after it: each reply
// and the whole state at the end.
TEST(Transcripts, TwoGames) {
  TemporaryFolder folder;
  ExpectTranscript(folder.path(), "two_games");
  EXPECT_EQ(BytesOf(folder.path() / "Masters.txt"), "Ada Lovelace - Grand Master of Quintara\r\n");
}

// Flights with every elevation, many velocities, drags and time steps, and both demonstrations.
TEST(Transcripts, GoldenFlights) {
  TemporaryFolder folder;
  ExpectTranscript(folder.path(), "golden_flights");
}

}  // namespace
}  // namespace quintara::host
