#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts are kept as UTF-8. A character is a code point of Unicode.

namespace quintara {

// Stands for what cannot be read as a character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

inline constexpr char32_t lastCharacter = 0x10FFFF;

constexpr bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

// False for a lone surrogate and a number above lastCharacter.
constexpr bool IsCharacter(char32_t value) {
  return value <= lastCharacter && !IsHighSurrogate(value) && !IsLowSurrogate(value);
}

// Reads the character of `utf8` that begins at `position`, which must lie within it, and moves `position`
// behind it. A byte that starts no valid sequence is passed alone and gives replacementCharacter.
char32_t ReadUtf8(std::string_view utf8, std::size_t& position);

// Adds a character to `utf8`. What is no character is added as replacementCharacter.
void AppendUtf8(std::string& utf8, char32_t character);

// The number of characters in `utf8`. A byte that is not part of valid UTF-8 counts as one character.
std::size_t CharacterCount(std::string_view utf8);

// The part of `utf8` that begins `start` characters into it and is `length` characters long, counted as by
// CharacterCount. It ends with the text, and is empty if it would begin behind it.
std::string CharacterSlice(std::string_view utf8, std::size_t start, std::size_t length);

}  // namespace quintara
