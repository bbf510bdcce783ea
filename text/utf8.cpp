#include "text/utf8.h"

#include <array>

namespace quintara {

namespace {

// The length of the sequence that a first byte announces, 0 if no sequence starts with it.
std::size_t SequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

}  // namespace

char32_t ReadUtf8(std::string_view utf8, std::size_t& position) {
  const std::size_t start = position++;
  const auto first = static_cast<unsigned char>(utf8[start]);
  const std::size_t length = SequenceLength(first);
  if (length == 1) return first;
  if (length == 0 || length > utf8.size() - start) return replacementCharacter;
  char32_t value = first & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(utf8[start + i]);
    if ((next & 0xC0u) != 0x80u) return replacementCharacter;
    value = value << 6 | (next & 0x3Fu);
  }
  // Longer spellings of small numbers would let one text have several forms.
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  if (value < smallest[length] || !IsCharacter(value)) return replacementCharacter;
  position = start + length;
  return value;
}

void AppendUtf8(std::string& utf8, char32_t character) {
  const char32_t value = IsCharacter(character) ? character : replacementCharacter;
  const auto tail = [value](int shift) { return static_cast<char>(0x80u | (value >> shift & 0x3Fu)); };
  if (value < 0x80) {
    utf8 += static_cast<char>(value);
  } else if (value < 0x800) {
    utf8 += {static_cast<char>(0xC0u | value >> 6), tail(0)};
  } else if (value < 0x10000) {
    utf8 += {static_cast<char>(0xE0u | value >> 12), tail(6), tail(0)};
  } else {
    utf8 += {static_cast<char>(0xF0u | value >> 18), tail(12), tail(6), tail(0)};
  }
}

std::size_t CharacterCount(std::string_view utf8) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < utf8.size(); ++count) ReadUtf8(utf8, position);
  return count;
}

std::string CharacterSlice(std::string_view utf8, std::size_t start, std::size_t length) {
  std::size_t first = 0;
  while (start > 0 && first < utf8.size()) {
    ReadUtf8(utf8, first);
    --start;
  }
  std::size_t last = first;
  while (length > 0 && last < utf8.size()) {
    ReadUtf8(utf8, last);
    --length;
  }
  return std::string(utf8.substr(first, last - first));
}

}  // namespace quintara
