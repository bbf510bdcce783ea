#include "text/windows_1252.h"

#include <array>

#include "text/utf8.h"

namespace quintara {

char32_t WesternCharacter(unsigned char byte) {
  constexpr char32_t none = replacementCharacter;
  constexpr std::array<char32_t, 32> upperControls{
      0x20AC, none,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, none,   0x017D, none,   none,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, none,   0x017E, 0x0178};
  if (byte >= 0x80 && byte <= 0x9F) return upperControls[byte - 0x80u];
  return byte;
}

}  // namespace quintara
