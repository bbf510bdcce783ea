#include "files/wave_file.h"

#include <cstddef>
#include <cstdint>

#include "files/little_endian.h"

namespace quintara {
namespace {

// The content of the first chunk of that name, cut to what the file holds of it.
std::string_view Chunk(std::string_view file, std::string_view name) {
  constexpr std::size_t head = 8;
  for (std::size_t at = 12; at + head <= file.size();) {
    const std::size_t size = LittleEndian(file, at + 4, 4);
    if (file.substr(at, 4) == name) return file.substr(at + head, size);
    if (size > file.size() - at - head) break;
    at += head + size + size % 2;  // chunks begin at even places
  }
  return {};
}

std::optional<Wave> ReadFormat(std::string_view format) {
  constexpr std::size_t shortest = 16;
  constexpr std::uint32_t plainSamples = 1, fewest = 1000, most = 192'000;
  if (format.size() < shortest || LittleEndian(format, 0, 2) != plainSamples) return std::nullopt;
  const std::uint32_t channels = LittleEndian(format, 2, 2), rate = LittleEndian(format, 4, 4),
                      bits = LittleEndian(format, 14, 2);
  if (channels < 1 || channels > 2 || rate < fewest || rate > most || (bits != 8 && bits != 16))
    return std::nullopt;
  return Wave{static_cast<int>(rate), static_cast<int>(channels), static_cast<int>(bits), {}};
}

}  // namespace

std::optional<Wave> ReadWave(std::string_view file) {
  if (file.substr(0, 4) != "RIFF" || file.size() < 12 || file.substr(8, 4) != "WAVE") return std::nullopt;
  std::optional<Wave> wave = ReadFormat(Chunk(file, "fmt "));
  if (!wave) return std::nullopt;
  const std::string_view samples = Chunk(file, "data");
  const auto bytesOfFrame = static_cast<std::size_t>(wave->channels * wave->bitsPerSample / 8);
  wave->samples = samples.substr(0, samples.size() / bytesOfFrame * bytesOfFrame);
  if (wave->samples.empty()) return std::nullopt;
  return wave;
}

}  // namespace quintara
