#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quintara {

// Stands for what cannot be read as a character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

// Reads the character of `utf8` that begins at `position`, which must lie within it, and moves `position`
// behind it. A byte that starts no valid sequence is passed alone and gives replacementCharacter.
char32_t ReadUtf8(std::string_view utf8, std::size_t& position);

// Adds a character to `utf8`. A lone surrogate or a number above U+10FFFF is added as replacementCharacter.
void AppendUtf8(std::string& utf8, char32_t character);

// The character that a byte stands for in Windows-1252; replacementCharacter for the five bytes without one.
char32_t WesternCharacter(unsigned char byte);

constexpr bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace quintara
