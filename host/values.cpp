#include "host/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "numbers/numbers.h"

namespace quintara::host {
namespace {

constexpr std::string_view blanks = " \t";

struct Escape {
  char letter;
  char meaning;
};
constexpr Escape escapes[] = {{'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}};

Result<char> Unescaped(char letter) {
  for (const Escape& escape : escapes) {
    if (escape.letter == letter) return escape.meaning;
  }
  return Refusal{"a text holds an unknown escape"};
}

// Takes a quoted text off the front of the line.
Result<Word> TakeQuoted(std::string_view& line) {
  Word word{"", true};
  std::size_t at = 1;
  for (; at < line.size() && line[at] != '"'; ++at) {
    const bool escaped = line[at] == '\\' && at + 1 < line.size();
    const Result<char> letter = escaped ? Unescaped(line[++at]) : line[at];
    if (!letter) return *letter.refusal();
    word.text += *letter;
  }
  if (at == line.size()) return Refusal{"a text has no closing quote"};
  line.remove_prefix(at + 1);
  if (!line.empty() && blanks.find(line.front()) == std::string_view::npos) {
    return Refusal{"a blank has to follow a text"};
  }
  return word;
}

Result<Word> TakePlain(std::string_view& line) {
  const std::string_view text = line.substr(0, line.find_first_of(blanks));
  line.remove_prefix(text.size());
  return Word{std::string(text), false};
}

template <typename Whole>
Result<Whole> ReadWhole(const Word& word) {
  Whole value = 0;
  const char* const end = word.text.data() + word.text.size();
  const auto result = std::from_chars(word.text.data(), end, value);
  if (word.quoted || result.ec == std::errc::invalid_argument || result.ptr != end) {
    return Refusal{"a whole number is expected"};
  }
  if (result.ec == std::errc::result_out_of_range) return Refusal{"the number is out of range"};
  return value;
}

}  // namespace

Result<std::vector<Word>> SplitWords(std::string_view line) {
  std::vector<Word> words;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    if (line.empty()) return words;
    const Result<Word> word = line.front() == '"' ? TakeQuoted(line) : TakePlain(line);
    if (!word) return *word.refusal();
    words.push_back(*word);
  }
}

Result<const std::string&> PlainWord(const Word& word) {
  if (word.quoted) return Refusal{"a name stands without quotes"};
  return word.text;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    char letter = 0;
    for (const Escape& escape : escapes) {
      if (escape.meaning == c) letter = escape.letter;
    }
    if (letter != 0) quoted += '\\';
    quoted += letter != 0 ? letter : c;
  }
  return quoted + '"';
}

Result<double> ReadNumber(const Word& word) {
  const auto value = word.quoted ? std::nullopt : ReadDecimal(word.text);
  if (!value) return Refusal{"a number is expected"};
  return *value;
}

Result<IndexedName> SplitIndex(std::string_view text) {
  const std::size_t bracket = text.find('(');
  if (bracket == std::string_view::npos || text.back() != ')') return IndexedName{text, std::nullopt};
  const std::string_view digits = text.substr(bracket + 1, text.size() - bracket - 2);
  const auto index = Integer16::Read({std::string(digits), false});
  if (!index) return *index.refusal();
  if (*index < 0) return Refusal{"an index is never negative"};
  return IndexedName{text.substr(0, bracket), *index};
}

Result<const std::string&> Text::Read(const Word& word) {
  if (!word.quoted) return Refusal{"a text in quotes is expected"};
  return word.text;
}

Result<bool> Boolean::Read(const Word& word) {
  if (word.quoted || (word.text != "-1" && word.text != "0")) return Refusal{"-1 or 0 is expected"};
  return word.text == "-1";
}

Result<std::int16_t> Integer16::Read(const Word& word) {
  return ReadWhole<std::int16_t>(word);
}

Result<std::int32_t> Integer32::Read(const Word& word) {
  return ReadWhole<std::int32_t>(word);
}

std::string Decimal::Write(double value) {
  return ExactText(value);
}

Result<Single> Decimal::Read(const Word& word) {
  // Half a step above the largest single: from here on a number would round to infinity.
  constexpr double beyondSingles = 0x1.ffffffp127;
  const auto value = ReadNumber(word);
  if (!value) return *value.refusal();
  if (std::fabs(*value) >= beyondSingles) return Refusal{"the number is out of range"};
  return Single(*value);
}

std::string ColourCode::Write(Colour value) {
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += "0123456789ABCDEF"[(value.value >> shift) & 0xF];
  return text;
}

Result<Colour> ColourCode::Read(const Word& word) {
  std::uint32_t value = 0;
  const char* const end = word.text.data() + word.text.size();
  const bool hasForm = !word.quoted && word.text.size() == 10 && word.text.starts_with("0x");
  if (!hasForm || std::from_chars(word.text.data() + 2, end, value, 16).ptr != end) {
    return Refusal{"a colour is expected, 0x and eight hexadecimal digits"};
  }
  return Colour(value);
}

}  // namespace quintara::host
