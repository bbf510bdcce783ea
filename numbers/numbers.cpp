#include "numbers/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quintara {
namespace {

template <typename Number>
concept ReadByFromChars = requires(const char* text, Number value) {
  std::from_chars(text, text, value);
};
static_assert(ReadByFromChars<double>,
              "from_chars has to read a double: take libstdc++ 11, libc++ 20 or newer");

// A caption such as "750" or "0.003" is parsed at each ballistic step, so the plain cases take this short
// way. Up to 15 digits and the power of ten that divides them are exact doubles; their quotient is the
// correctly rounded value.
std::optional<double> ValOfPlainDecimal(std::string_view text) {
  constexpr double powersOfTen[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (text.empty() || text.size() > 15) return std::nullopt;
  std::int64_t digits = 0;
  std::size_t decimals = 0;
  bool point = false;
  for (const char c : text) {
    if (IsDigit(c)) {
      digits = digits * 10 + (c - '0');
      decimals += point ? 1 : 0;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      return std::nullopt;
    }
  }
  return static_cast<double>(digits) / powersOfTen[decimals];
}

// Collects the characters of a number from any text and leaves out the blanks between them.
class NumberScanner {
 public:
  explicit NumberScanner(std::string_view text) : text_(text) {}

  // The number as plain text that a conversion takes, or nothing where no digit was found.
  std::string Scan() {
    if (Peek() == '+' || Peek() == '-') Take();
    std::size_t digits = TakeDigits();
    if (Peek() == '.') {
      Take();
      digits += TakeDigits();
    }
    if (digits == 0) return {};
    if (Peek() == 'e' || Peek() == 'E') TakeExponent();
    if (number_.front() == '+') number_.erase(0, 1);
    return number_;
  }

 private:
  char Peek() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  void Take() { number_ += text_[at_++]; }

  std::size_t TakeDigits() {
    std::size_t count = 0;
    for (; IsDigit(Peek()); ++count) Take();
    return count;
  }

  void TakeExponent() {
    const std::string mantissa = number_;
    Take();
    if (Peek() == '+') {
      ++at_;
    } else if (Peek() == '-') {
      Take();
    }
    if (TakeDigits() == 0) number_ = mantissa;  // "3e" is 3
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::string number_;
};

// A number beyond a double's range becomes one of its ends: which one, the place of its first significant
// digit tells.
double BeyondRange(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, e);
  const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<double>(mantissa.find_first_of("123456789"));
  double exponent = 0;
  for (const char c : number.substr(e)) exponent = IsDigit(c) ? exponent * 10 + (c - '0') : exponent;
  if (number.substr(e).find('-') != std::string_view::npos) exponent = -exponent;
  const double size = point - first + exponent > 0 ? std::numeric_limits<double>::max() : 0;
  return number.front() == '-' ? -size : size;
}

// What a number that is none, or lies beyond all bounds, is shown as: 0, or the largest single of its sign.
double Showable(double number) {
  constexpr double largest = std::numeric_limits<float>::max();
  if (std::isnan(number)) return 0;
  return std::isinf(number) ? std::copysign(largest, number) : number;
}

// Turns "d.ddddE±xx" into plain decimals without trailing zeros.
std::string PlainDecimals(double number, int significantDigits) {
  number = Showable(number);
  if (number == 0) return "0";
  char buffer[40];
  const char* end = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(number),
                                  std::chars_format::scientific, significantDigits - 1)
                        .ptr;
  const std::string_view scientific(buffer, static_cast<std::size_t>(end - buffer));
  const std::size_t e = scientific.find('e');

  std::string digits(1, scientific[0]);
  digits += scientific.substr(2, e - 2);
  digits.erase(digits.find_last_not_of('0') + 1);
  int exponent = 0;
  const std::size_t sign = scientific[e + 1] == '+' ? 2 : 1;
  std::from_chars(scientific.data() + e + sign, scientific.data() + scientific.size(), exponent);

  const auto whole = static_cast<std::size_t>(std::max(exponent + 1, 0));
  if (exponent < 0) digits.insert(0, static_cast<std::size_t>(-exponent - 1), '0');
  if (digits.size() < whole) digits.append(whole - digits.size(), '0');
  std::string text = number < 0 ? "-" : "";
  text += whole == 0 ? "0" : digits.substr(0, whole);
  if (digits.size() > whole) text += "." + digits.substr(whole);
  return text;
}

template <typename Whole>
Whole NearestEven(double x) {
  using Limits = std::numeric_limits<Whole>;
  if (std::isnan(x)) return 0;
  const double nearest = std::nearbyint(x);
  if (nearest <= Limits::min()) return Limits::min();
  if (nearest >= Limits::max()) return Limits::max();
  return static_cast<Whole>(nearest);
}

}  // namespace

double Val(std::string_view text) {
  if (const auto plain = ValOfPlainDecimal(text)) return *plain;
  const std::string number = NumberScanner(text).Scan();
  if (number.empty()) return 0;
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  return result.ec == std::errc::result_out_of_range ? BeyondRange(number) : value;
}

std::string ToText(std::int32_t number) {
  return std::to_string(number);
}
std::string ToText(Single number) {
  return PlainDecimals(number, 7);
}
std::string ToText(double number) {
  return PlainDecimals(number, 15);
}

std::string Format(Single value, Pattern pattern) {
  // A single times 100 is exact in a double, so the half added here meets true halves only.
  const int decimals = pattern == Pattern::Whole ? 0 : 2;
  const double rounded =
      std::floor(std::fabs(Showable(value)) * (decimals == 0 ? 1 : 100) + 0.5) / (decimals == 0 ? 1 : 100);
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed, decimals);
  const std::string text(buffer, end.ptr);
  return value < 0 && rounded != 0 ? "-" + text : text;
}

std::string_view Left(std::string_view text, std::size_t count) {
  return text.substr(0, count);
}

std::string_view Right(std::string_view text, std::size_t count) {
  return count < text.size() ? text.substr(text.size() - count) : text;
}

std::int16_t CInt(double x) {
  return NearestEven<std::int16_t>(x);
}
std::int32_t CLng(double x) {
  return NearestEven<std::int32_t>(x);
}

std::string ExactText(Single number) {
  const Single shown = Showable(number);
  if (shown == 0) return "0";
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, shown.Stored(), std::chars_format::fixed);
  return std::string(buffer, end.ptr);
}

std::optional<double> ReadDecimal(std::string_view text) {
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
  return whole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace quintara
