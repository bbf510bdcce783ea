#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "numbers/single.h"
#include "scene/colour.h"

// How commands and values are written on a line.

namespace quintara::host {

// Why a command can't be carried out. It is thrown before anything has changed; its text stands behind
// "error: " and has no line break.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One word of a command line.
struct Word {
  std::string text;  // of a quoted word what its quotes enclose, without the escapes
  bool quoted = false;
};

// The words of a line, parted by blanks or tabs. A Refusal where a quoted text has no end, goes on behind its
// closing quote, or holds an escape other than \" \\ \r \n \t.
std::vector<Word> SplitWords(std::string_view line);

// A word that has to be a name or another plain word; a Refusal where it is quoted.
const std::string& PlainWord(const Word& word);

// A text in quotes and escaped, so that it keeps to its line.
std::string Quoted(std::string_view text);

// A plain decimal number; a Refusal for any other word.
double ReadNumber(const Word& word);

// A name with an index in brackets, Shape1(0), or without one.
struct IndexedName {
  std::string_view name;
  std::optional<std::int16_t> index;  // 0 or above
};
// A Refusal where brackets hold no index of 16 bits.
IndexedName SplitIndex(std::string_view text);

// The types of values. Write gives a value's word; Read takes it back and refuses a word of another type and
// one outside the range of the type.
struct Text {
  using Type = std::string;
  static std::string Write(const std::string& value) { return Quoted(value); }
  static std::string Read(const Word& word);
};

struct Boolean {
  using Type = bool;
  static std::string Write(bool value) { return value ? "-1" : "0"; }
  static bool Read(const Word& word);
};

struct Integer16 {
  using Type = std::int16_t;
  static std::string Write(std::int16_t value) { return std::to_string(value); }
  static std::int16_t Read(const Word& word);
};

struct Integer32 {
  using Type = std::int32_t;
  static std::string Write(std::int32_t value) { return std::to_string(value); }
  static std::int32_t Read(const Word& word);
};

struct Decimal {
  using Type = Single;
  static std::string Write(double value);
  static Single Read(const Word& word);
};

struct ColourCode {
  using Type = Colour;
  static std::string Write(Colour value);
  static Colour Read(const Word& word);
};

}  // namespace quintara::host
