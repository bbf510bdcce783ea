#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quintara {

// The number that `count` bytes, up to 4, hold from `at` on, the lowest first. All must lie within `bytes`.
constexpr std::uint32_t LittleEndian(std::string_view bytes, std::size_t at, std::size_t count) {
  std::uint32_t number = 0;
  for (std::size_t i = count; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

}  // namespace quintara
