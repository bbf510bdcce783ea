#pragma once

#include <cstdint>

namespace quintara {

// A colour as forms store it: 0x00BBGGRR is direct, 0x800000nn is system colour nn, which a renderer looks
// up.
struct Colour {
  std::uint32_t value = 0;

  constexpr Colour() = default;
  constexpr Colour(std::uint32_t stored)
      : value(stored) {}  // NOLINT: tables and handlers write colours as numbers
  friend constexpr bool operator==(Colour, Colour) = default;
};

namespace colours {
inline constexpr Colour windowBackground = 0x80000005;
inline constexpr Colour windowText = 0x80000008;
inline constexpr Colour buttonFace = 0x8000000F;
inline constexpr Colour buttonText = 0x80000012;
}  // namespace colours

// Colour n, 0 to 15, of the palette of sixteen colours; another number gives black.
constexpr Colour QBColor(int n) {
  constexpr std::uint32_t palette[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                       0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                       0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  return n >= 0 && n < 16 ? palette[n] : palette[0];
}

// The direct colour, 0x00BBGGRR, of the classic grey desktop for a stored colour. A system colour that no
// form uses is black.
constexpr std::uint32_t DirectColour(Colour colour) {
  if ((colour.value & 0x80000000) == 0) return colour.value & 0x00FFFFFF;
  switch (colour.value & 0xFF) {
    case 0x01: return 0x808000;  // desktop
    case 0x02: return 0x800000;  // active caption
    case 0x03: return 0x808080;  // inactive caption
    case 0x04: return 0xC0C0C0;  // menu
    case 0x05: return 0xFFFFFF;  // window background
    case 0x06: return 0x000000;  // window frame
    case 0x08: return 0x000000;  // window text
    case 0x09: return 0xFFFFFF;  // caption text
    case 0x0C: return 0x808080;  // application workspace
    case 0x0E: return 0xFFFFFF;  // highlight text
    case 0x0F: return 0xC0C0C0;  // button face
    case 0x12: return 0x000000;  // button text
    case 0x18: return 0xE1FFFF;  // tooltip background
    default: return 0x000000;
  }
}

}  // namespace quintara
