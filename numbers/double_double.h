#pragma once

#include <cfloat>

// Arithmetic on numbers of about 106 bits. It takes nothing but the + - * / of doubles, each of which IEEE
// 754 rounds in one way only, so a result is the same on every machine.

namespace quintara {

static_assert(FLT_EVAL_METHOD == 0, "intermediate results must be doubles, no wider");

// The number `high + low`, where `high` is the double nearest to it.
struct DoubleDouble {
  double high = 0;
  double low = 0;
};

// Both results are exact where nothing over- or underflows; a product's factors lie below 2^996.
constexpr DoubleDouble ExactSum(double a, double b) {
  const double sum = a + b;
  const double takenOfB = sum - a;
  return {sum, (a - (sum - takenOfB)) + (b - takenOfB)};
}

// ExactSum where `a` is known to be the larger one, or 0.
constexpr DoubleDouble ExactSumOfOrdered(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

// A double as two of at most 26 bits: products of such are exact.
constexpr DoubleDouble Halves(double a) {
  const double scaled = a * 0x1.0000002p27;
  const double high = scaled - (scaled - a);
  return {high, a - high};
}

constexpr DoubleDouble ExactProduct(double a, double b) {
  const double product = a * b;
  const DoubleDouble x = Halves(a), y = Halves(b);
  return {product, x.high * y.high - product + x.high * y.low + x.low * y.high + x.low * y.low};
}

// These round, but err by less than a part in 2^102.
constexpr DoubleDouble operator+(const DoubleDouble& a, const DoubleDouble& b) {
  const DoubleDouble high = ExactSum(a.high, b.high), low = ExactSum(a.low, b.low);
  const DoubleDouble sum = ExactSumOfOrdered(high.high, high.low + low.high);
  return ExactSumOfOrdered(sum.high, sum.low + low.low);
}

constexpr DoubleDouble operator-(const DoubleDouble& a) {
  return {-a.high, -a.low};
}

constexpr DoubleDouble operator-(const DoubleDouble& a, const DoubleDouble& b) {
  return a + -b;
}

constexpr DoubleDouble operator*(const DoubleDouble& a, const DoubleDouble& b) {
  const DoubleDouble product = ExactProduct(a.high, b.high);
  return ExactSumOfOrdered(product.high, product.low + (a.high * b.low + a.low * b.high));
}

constexpr DoubleDouble operator/(const DoubleDouble& a, const DoubleDouble& b) {
  const double quotient = a.high / b.high;
  const DoubleDouble rest = a - b * DoubleDouble{quotient};
  return ExactSumOfOrdered(quotient, rest.high / b.high);
}

}  // namespace quintara
