#include "numbers/trigonometry.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/double_double.h"

namespace quintara {
namespace {

// Quarter of a turn, pi/2, as the sum of four doubles.
constexpr double quarterTurn[] = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, -0x1.f1976b7ed8fbcp-110,
                                  0x1.4cf98e804177dp-164};
constexpr double quartersInRadian = 0x1.45f306dc9c883p-1;
constexpr double largestAngle = 0x1p30;

// Below this a sine and an arctangent are nearer to their argument than to any other double.
constexpr double tiny = 0x1p-27;

constexpr std::size_t seriesTerms = 13;

// reciprocals[k] is 1 / (k (k + 1)), by which one term of a series follows from the one before.
constexpr auto reciprocals = [] {
  std::array<DoubleDouble, 2 * seriesTerms + 1> table{};
  for (std::size_t k = 1; k < table.size(); ++k) {
    table[k] = DoubleDouble{1} / DoubleDouble{static_cast<double>(k * (k + 1))};
  }
  return table;
}();

// 1 - s/(k (k+1)) + s^2/(k (k+1) (k+2) (k+3)) - ..., with the square s of an angle: for k = 1 its cosine, for
// k = 2 its sine divided by the angle. Up to an eighth of a turn what is left out is below 2^-107.
DoubleDouble Series(const DoubleDouble& square, std::size_t k) {
  DoubleDouble sum{1};
  for (std::size_t term = seriesTerms; term-- > 0;) {
    sum = DoubleDouble{1} - square * reciprocals[k + 2 * term] * sum;
  }
  return sum;
}

// The sine of a finite angle and a number of quarters of a turn.
DoubleDouble Sine(double radians, std::int64_t quarters) {
  if (std::fabs(radians) >= largestAngle) radians = std::fmod(radians, 4 * quarterTurn[0]);
  const double nearest = std::floor(radians * quartersInRadian + 0.5);
  // No double comes nearer to a multiple of pi/2 than 2^-62, where these four parts are still right to
  // 2^-120.
  DoubleDouble rest{radians};
  for (const double part : quarterTurn) rest = rest - ExactProduct(nearest, part);

  const auto quarter = (static_cast<std::int64_t>(nearest) + quarters) & 3;
  const DoubleDouble square = rest * rest;
  const DoubleDouble sine = quarter % 2 == 0 ? rest * Series(square, 2) : Series(square, 1);
  return quarter < 2 ? sine : -sine;
}

// An arctangent to 2^-24 of its size: the angle is halved three times, then a few terms of its series do.
double RoughArctangent(double x) {
  for (int halving = 0; halving < 3; ++halving) x = x / (1 + std::sqrt(1 + x * x));
  const double s = x * x;
  return 8 * x * (1 - s * (1.0 / 3 - s * (1.0 / 5 - s * (1.0 / 7 - s / 9))));
}

}  // namespace

double Sin(double radians) {
  if (!std::isfinite(radians)) return std::numeric_limits<double>::quiet_NaN();
  return std::fabs(radians) < tiny ? radians : Sine(radians, 0).high;
}

double Cos(double radians) {
  if (!std::isfinite(radians)) return std::numeric_limits<double>::quiet_NaN();
  return Sine(radians, 1).high;
}

double Atn(double x) {
  if (std::isnan(x) || std::fabs(x) < tiny) return x;
  if (std::fabs(x) > 0x1p54) return std::copysign(quarterTurn[0], x);
  // The tangent of what the rough angle lacks, by the rule for the tangent of a difference.
  const double rough = RoughArctangent(x);
  const DoubleDouble sine = Sine(rough, 0), cosine = Sine(rough, 1), tangent{x};
  const DoubleDouble lack = (tangent * cosine - sine) / (cosine + tangent * sine);
  return (DoubleDouble{rough} + lack - DoubleDouble{lack.high * lack.high * lack.high / 3}).high;
}

}  // namespace quintara
