#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "numbers/single.h"

// The program keeps much of its state as text in captions. These are the rules by which such text becomes a
// number and a number becomes text; they decide what the player reads and what the next step of the game
// computes with.

namespace quintara {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The leading number of a text, 0 if there is none. Blanks before and within the number are skipped; reading
// stops at the first character that can't go on with it ("3x" is 3). Never fails: a number too large for a
// double gives the largest double, one too small gives 0.
double Val(std::string_view text);

// The shortest decimal text of a number: all digits of a whole number, 7 significant digits of a single, 15
// of a double, without trailing zeros and without an exponent. Below 1 the leading zero is kept.
std::string ToText(std::int32_t number);
std::string ToText(Single number);
std::string ToText(double number);

// The two patterns that read-outs use: whole numbers, and two decimals that are always shown.
enum class Pattern { Whole, TwoDecimals };

// Rounds halves away from zero. A value that rounds to zero shows no minus sign.
std::string Format(Single value, Pattern pattern);

// The first or last `count` characters of a text; all of a shorter one.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);

// The largest whole number not above x.
inline double Int(double x) {
  return std::floor(x);
}

// The nearest whole number, halves to the even neighbour. A number outside the range gives the nearest bound
// of it.
std::int16_t CInt(double x);
std::int32_t CLng(double x);

inline double Sqr(double x) {
  return std::sqrt(x);
}

// The shortest decimal that reads back to the same single, never with an exponent; minus zero is "0".
std::string ExactText(Single number);

// A plain decimal number ("-12.5", "3e2") that fills the whole text; nothing else is read. Nothing on any
// other text and on numbers too large for a double.
std::optional<double> ReadDecimal(std::string_view text);

}  // namespace quintara
