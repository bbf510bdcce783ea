#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/result.h"
#include "numbers/single.h"
#include "scene/colour.h"

// How commands and values are written on a line.

namespace quintara::host {

// One word of a command line.
struct Word {
  std::string text;  // of a quoted word what its quotes enclose, without the escapes
  bool quoted = false;
};

// The words of a line, parted by blanks or tabs. Refused where a quoted text has no end, goes on behind its
// closing quote, or holds an escape other than \" \\ \r \n \t.
Result<std::vector<Word>> SplitWords(std::string_view line);

// The text of a word that has to be a name or another plain word; refused where it is quoted.
Result<const std::string&> PlainWord(const Word& word);

// A text in quotes and escaped, so that it keeps to its line.
std::string Quoted(std::string_view text);

// A plain decimal number; any other word is refused.
Result<double> ReadNumber(const Word& word);

// A name with an index in brackets, Shape1(0), or without one.
struct IndexedName {
  std::string_view name;
  std::optional<std::int16_t> index;  // 0 or above
};
// Refused where brackets hold no index of 16 bits.
Result<IndexedName> SplitIndex(std::string_view text);

// The types of values. Write gives a value's word; Read takes it back and refuses a word of another type and
// one outside the range of the type.
struct Text {
  static std::string Write(const std::string& value) { return Quoted(value); }
  static Result<const std::string&> Read(const Word& word);
};

struct Boolean {
  static std::string Write(bool value) { return value ? "-1" : "0"; }
  static Result<bool> Read(const Word& word);
};

struct Integer16 {
  static std::string Write(std::int16_t value) { return std::to_string(value); }
  static Result<std::int16_t> Read(const Word& word);
};

struct Integer32 {
  static std::string Write(std::int32_t value) { return std::to_string(value); }
  static Result<std::int32_t> Read(const Word& word);
};

struct Decimal {
  static std::string Write(double value);
  static Result<Single> Read(const Word& word);
};

struct ColourCode {
  static std::string Write(Colour value);
  static Result<Colour> Read(const Word& word);
};

}  // namespace quintara::host
