// Numbers and their texts: what is shown reads back to what it was, and every text reads as a number.

#include "numbers/numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "fuzz/bytes.h"
#include "fuzz/require.h"

namespace quintara::fuzz {
namespace {

constexpr double smallestDouble = std::numeric_limits<double>::denorm_min();
constexpr double largestSingle = std::numeric_limits<float>::max();

// "-12.5": no exponent, no sign but a leading minus, digits on both sides of a point.
bool IsPlain(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const std::size_t point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  const auto areDigits = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  const bool leadingZero = whole.size() > 1 && whole.starts_with('0');
  return areDigits(whole) && !leadingZero &&
         (point == std::string_view::npos || areDigits(text.substr(point + 1)));
}

bool IsTrimmed(std::string_view text) {
  return IsPlain(text) && text != "-0" && (text.find('.') == std::string_view::npos || !text.ends_with('0'));
}

// As far as this number of significant digits tells two numbers apart; the smallest numbers have fewer.
bool IsNear(double a, double b, double digit, double smallest) {
  return std::fabs(a - b) <= std::max(std::fabs(b) * digit, smallest);
}

void CheckText(std::string_view text) {
  const double value = Val(text);
  Require(std::isfinite(value), "every text reads as a number", text);
  if (const auto decimal = ReadDecimal(text)) Require(*decimal == value, "a plain decimal reads alike", text);
  std::string spread;
  for (const char c : text) spread += {' ', c};
  Require(Val(spread) == value, "blanks mean nothing", text);
}

void CheckDouble(double number) {
  const double finite = std::isinf(number) ? std::copysign(largestSingle, number) : number;
  const double shown = std::isnan(number) ? 0 : finite;
  const std::string text = ToText(number);
  Require(IsTrimmed(text) && IsNear(Val(text), shown, 1e-14, smallestDouble), "15 digits are kept", text);
  const bool hasAllDigits = std::fabs(shown) > 1e-290;
  Require(!hasAllDigits || ToText(Val(text)) == text, "what was shown is shown again", text);

  const auto isNearest = [shown](double whole, double least, double most) {
    return std::fabs(whole - std::clamp(shown, least, most)) <= 0.5;
  };
  Require(std::isinf(number) || isNearest(CInt(number), -32768, 32767), "the nearest 16-bit number", text);
  Require(std::isinf(number) || isNearest(CLng(number), -2147483648.0, 2147483647),
          "the nearest 32-bit number", text);
}

void CheckSingle(float number) {
  const Single single(static_cast<double>(number));
  const double shown =
      std::isnan(number) ? 0 : std::clamp<double>(static_cast<double>(number), -largestSingle, largestSingle);

  const std::string exact = ExactText(single);
  const auto read = ReadDecimal(exact);
  Require(IsTrimmed(exact) && read.has_value(), "the exact text is plain", exact);
  Require(Single(*read).Stored() == Single(shown).Stored(), "the exact text reads back to the same", exact);

  const std::string text = ToText(single);
  Require(IsTrimmed(text) && IsNear(Val(text), shown, 1e-6, 1e-45), "7 digits are kept", text);

  const std::string whole = Format(single, Pattern::Whole);
  Require(IsPlain(whole) && whole.find('.') == std::string::npos && whole != "-0", "a whole number", whole);
  Require(IsNear(Val(whole), shown, 2e-15, 0.5), "the nearest whole number", whole);

  const std::string decimals = Format(single, Pattern::TwoDecimals);
  Require(IsPlain(decimals) && decimals.find('.') == decimals.size() - 3, "two decimals", decimals);
  Require(decimals != "-0.00", "zero has no sign", decimals);
  Require(IsNear(Val(decimals), shown, 2e-15, 0.0050000001), "the nearest hundredth", decimals);
}

void CheckWhole(std::int32_t number) {
  const std::string text = ToText(number);
  Require(Val(text) == number && CLng(Val(text)) == number, "a whole number reads back", text);
}

}  // namespace
}  // namespace quintara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quintara::fuzz;
  CheckText(AsText(data, size));
  Bytes bytes(AsText(data, size));
  std::uint64_t bits = 0;
  for (int i = 0; i < 8; ++i) bits = bits << 8 | bytes.Take();
  CheckDouble(std::bit_cast<double>(bits));
  CheckSingle(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
  CheckWhole(std::bit_cast<std::int32_t>(static_cast<std::uint32_t>(bits)));
  // Numbers as the game has them, near one and near the halves where rounding turns.
  const auto part = static_cast<double>(bits >> 40);
  CheckSingle(static_cast<float>(part / 200 - 40000));
  CheckDouble(part / 2 - 40000);
  return 0;
}
