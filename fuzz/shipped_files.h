#pragma once

#include <fstream>
#include <iterator>

#include "tests/support/memory_disk.h"

namespace quintara::fuzz {

// The folder of the program on a disk in memory.
inline constexpr const char* programFolder = "/quintara";

// The documents and bitmaps that are shipped, read once.
inline const FileContents& ShippedFiles() {
  static const FileContents files = [] {
    FileContents read;
    const std::filesystem::path data = PROJECT_FOLDER "/data";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(data)) {
      const auto kind = entry.path().extension();
      if (kind != ".rtf" && kind != ".bmp") continue;
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string name = entry.path().lexically_relative(data).generic_string();
      read[programFolder + ("/" + name)] = {std::istreambuf_iterator<char>(file), {}};
    }
    return read;
  }();
  return files;
}

}  // namespace quintara::fuzz
