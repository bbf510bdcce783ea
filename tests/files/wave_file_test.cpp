#include "files/wave_file.h"

#include <gtest/gtest.h>

#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

std::string SoundFile(const std::string& name) {
  return BytesOf(std::filesystem::path(PROJECT_FOLDER "/data") / name);
}

TEST(WaveFileTest, TheShippedSoundsCanBePlayed) {
  for (const char* name : {"biggun.wav", "bomb.wav", "bombex~2.wav", "gong.wav"}) {
    const auto wave = ReadWave(SoundFile(name));
    ASSERT_TRUE(wave) << name;
    EXPECT_TRUE(wave->samplesPerSecond == 22050 && wave->channels == 1 && wave->bitsPerSample == 16) << name;
    EXPECT_GT(wave->samples.size(), 22050U) << name;
  }
}

TEST(WaveFileTest, OfAFileCutOffTheSoundThatIsThereIsPlayed) {
  const std::string whole = SoundFile("gong.wav");
  const std::string samples = ReadWave(whole)->samples;
  std::size_t playable = 0;
  for (std::size_t length = 0; length < 300; ++length) {
    const auto wave = ReadWave(whole.substr(0, length));
    if (!wave) continue;
    ++playable;
    EXPECT_EQ(wave->samples.size() % 2, 0U);
    EXPECT_EQ(wave->samples, samples.substr(0, wave->samples.size()));
  }
  EXPECT_EQ(playable, 300 - 44 - 2);
  const std::string note = std::string("LIST\3\0\0\0abc\0", 12);
  EXPECT_EQ(ReadWave(whole.substr(0, 36) + note + whole.substr(36))->samples, samples)
      << "other chunks may stand before the samples";
}

}  // namespace
}  // namespace quintara
