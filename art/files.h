#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "art/canvas.h"

namespace quintara::art {

// Each writes a whole file, making its folder where needed, and throws std::runtime_error if it cannot.

void WritePng(const std::filesystem::path& path, const Bitmap& bitmap);

// 24 bits a pixel; transparency is lost.
void WriteBmp(const std::filesystem::path& path, const Bitmap& bitmap);

// One channel of 16 bits.
void WriteWav(const std::filesystem::path& path, const std::vector<std::int16_t>& samples,
              int samplesPerSecond);

}  // namespace quintara::art
