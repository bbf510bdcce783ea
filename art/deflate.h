#ifndef QUINTARA_ART_DEFLATE_H
#define QUINTARA_ART_DEFLATE_H

#include <cstdint>
#include <vector>

namespace quintara::art {

// Packs bytes as a zlib stream.
std::vector<std::uint8_t> Deflate(const std::vector<std::uint8_t>& bytes);

}  // namespace quintara::art

#endif
