#include "text/rich_text_tokens.h"

#include <algorithm>

#include "numbers/numbers.h"

namespace quintara {

namespace {

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// The value of a hexadecimal digit, -1 for anything else.
int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

RichTextToken Plain(RichTextToken::Kind kind, unsigned char byte = 0) {
  return {kind, byte, {}, {}};
}

}  // namespace

RichTextToken RichTextTokens::Next() {
  while (position_ < rtf_.size()) {
    const char c = rtf_[position_++];
    switch (c) {
      case '{': return Plain(RichTextToken::Kind::GroupStart);
      case '}': return Plain(RichTextToken::Kind::GroupEnd);
      case '\\':
        if (position_ < rtf_.size()) return AfterBackslash();
        break;
      case '\r':
      case '\n':
      case '\0': break;
      default: return Plain(RichTextToken::Kind::Byte, static_cast<unsigned char>(c));
    }
  }
  return {};
}

RichTextToken RichTextTokens::AfterBackslash() {
  if (IsLetter(rtf_[position_])) return ReadWord();
  const char c = rtf_[position_++];
  if (c == '\'' && rtf_.size() - position_ >= 2) {
    const int high = HexValue(rtf_[position_]);
    const int low = HexValue(rtf_[position_ + 1]);
    if (high >= 0 && low >= 0) {
      position_ += 2;
      return Plain(RichTextToken::Kind::Byte, static_cast<unsigned char>(high * 16 + low));
    }
  }
  return Plain(RichTextToken::Kind::Symbol, static_cast<unsigned char>(c));
}

RichTextToken RichTextTokens::ReadWord() {
  const std::size_t start = position_;
  while (position_ < rtf_.size() && IsLetter(rtf_[position_])) ++position_;
  RichTextToken token{RichTextToken::Kind::Word, 0, rtf_.substr(start, position_ - start), {}};
  token.number = ReadNumber();
  if (position_ < rtf_.size() && rtf_[position_] == ' ') ++position_;
  // The data may hold any bytes, braces too, so nobody else may see them.
  if (token.word == "bin" && token.number.value_or(0) > 0) {
    position_ += std::min(static_cast<std::size_t>(*token.number), rtf_.size() - position_);
  }
  return token;
}

std::optional<int> RichTextTokens::ReadNumber() {
  std::size_t digit = position_;
  const bool negative = digit < rtf_.size() && rtf_[digit] == '-';
  if (negative) ++digit;
  if (digit >= rtf_.size() || !IsDigit(rtf_[digit])) return std::nullopt;
  constexpr int largest = 1'000'000'000;
  int value = 0;
  for (; digit < rtf_.size() && IsDigit(rtf_[digit]); ++digit) {
    value = value >= largest / 10 ? largest : value * 10 + (rtf_[digit] - '0');
  }
  position_ = digit;
  return negative ? -value : value;
}

}  // namespace quintara
