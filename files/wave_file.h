#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quintara {

// A sound as plain samples: of 16 bits signed, or of 8 bits unsigned.
struct Wave {
  int samplesPerSecond = 0;
  int channels = 0;  // 1 or 2
  int bitsPerSample = 0;
  std::string samples;  // the lower byte first, whole frames only
};

// The sound in the bytes of a wave file that is not compressed; nothing where there is none that can be
// played. Samples that a file lacks at its end are left out.
std::optional<Wave> ReadWave(std::string_view file);

}  // namespace quintara
