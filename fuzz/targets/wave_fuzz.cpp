// The reader of wave files: what it takes can be played.

#include "files/wave_file.h"
#include "fuzz/bytes.h"
#include "fuzz/require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using quintara::fuzz::Require;
  const auto wave = quintara::ReadWave(quintara::fuzz::AsText(data, size));
  if (!wave) return 0;
  Require(wave->channels == 1 || wave->channels == 2, "one channel or two");
  Require(wave->bitsPerSample == 8 || wave->bitsPerSample == 16, "samples of 8 bits or 16");
  Require(wave->samplesPerSecond >= 1000 && wave->samplesPerSecond <= 192'000, "a rate that can be played");
  const auto frame = static_cast<std::size_t>(wave->channels * wave->bitsPerSample / 8);
  Require(!wave->samples.empty() && wave->samples.size() % frame == 0, "whole frames only");
  Require(wave->samples.size() < size, "no sample that the file doesn't have");
  return 0;
}
