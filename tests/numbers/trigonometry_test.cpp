#include "numbers/trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "numbers/single.h"

namespace quintara {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// The true values were worked out to a hundred digits. Nearly all lie within a fifty-thousandth of a unit
// in the last place of the middle between two doubles; the rest are the nearest that doubles come to a
// multiple of pi/2, and the ends of the ranges.
TEST(Trigonometry, RoundsTheHardCasesToTheNearestDouble) {
  EXPECT_EQ(Sin(0x1.e6a366f2d31d0p+8), 0x1.36fca2240ddaap-2);
  EXPECT_EQ(Sin(-0x1.513ad2269687ep+0), -0x1.efa3426a888d4p-1);
  EXPECT_EQ(Sin(0x1.b951f1572eba5p+23), -1);
  EXPECT_EQ(Sin(-0x1p-27), -0x1p-27);
  EXPECT_EQ(Cos(0x1.0aeb362167940p+6), -0x1.746f63cb55a90p-1);
  EXPECT_EQ(Cos(-0x1.7a18207ecdcd3p+0), 0x1.7fe8d40247fafp-4);
  EXPECT_EQ(Cos(0x1.6c6cbc45dc8dep+5), -0x1.6d61b58c99c43p-61);
  EXPECT_EQ(Cos(0x1.b951f1572eba5p+23), -0x1.f54f5227a4e84p-60);
  EXPECT_EQ(Atn(-0x1.ac2e8da4df9e0p-3), -0x1.a61a08cf8f01ep-3);
  EXPECT_EQ(Atn(0x1.df26359498cc8p+44), 0x1.921fb54442c90p+0);
  EXPECT_EQ(Atn(0x1.3f17880e8b93fp+7), 0x1.9084f2a31a083p+0);
  EXPECT_EQ(Atn(0x1p-27), 0x1p-27);
  EXPECT_EQ(Atn(0x1p54), 0x1.921fb54442d18p+0);
}

TEST(Trigonometry, TakesAnyDouble) {
  for (const double x : {infinity, -infinity, std::nan("")}) {
    EXPECT_TRUE(std::isnan(Sin(x)) && std::isnan(Cos(x))) << x;
  }
  EXPECT_EQ(Atn(infinity), std::numbers::pi / 2);
  EXPECT_EQ(Atn(std::numeric_limits<double>::lowest()), -std::numbers::pi / 2);
  EXPECT_TRUE(std::isnan(Atn(std::nan(""))));
  EXPECT_EQ(Cos(0), 1);
  for (const auto function : {Sin, Atn}) {
    for (const double x : {0.0, 5e-324, 1e-300}) EXPECT_EQ(function(x), x);
    EXPECT_TRUE(std::signbit(function(-0.0)));
  }
  // No angles any more, but the two still belong together.
  for (double x = 0x1p30; x < infinity; x *= 3) {
    EXPECT_NEAR(Sin(x) * Sin(x) + Cos(x) * Cos(x), 1, 1e-15) << x;
    EXPECT_EQ(Sin(-x), -Sin(x));
  }
}

// Holds a function against the system's in long double, which tells the nearest double wherever it is not
// itself too near to the middle between two.
class Reference {
 public:
  Reference(double (*function)(double), long double (*wider)(long double))
      : function_(function), wider_(wider) {}

  void Check(double x) {
    const long double value = wider_(x);
    const long double margin = std::fabs(value) * 2 * std::numeric_limits<long double>::epsilon();
    const auto least = static_cast<double>(value - margin), most = static_cast<double>(value + margin);
    const double result = function_(x);
    ASSERT_TRUE(result == least || result == most) << std::hexfloat << x << " gives " << result;
    ++checked_;
    undecided_ += least == most ? 0 : 1;
  }

  void ExpectFewUndecided() const { EXPECT_LT(undecided_ * 100, checked_) << undecided_; }

 private:
  double (*function_)(double);
  long double (*wider_)(long double);
  int checked_ = 0, undecided_ = 0;
};

TEST(Trigonometry, AgreesWithWiderArithmetic) {
  if (std::numeric_limits<long double>::digits < 64)
    GTEST_SKIP() << "long double is no wider than double here";
  Reference sine(Sin, std::sin), cosine(Cos, std::cos), arctangent(Atn, std::atan);
  const auto check = [&](double x) {
    sine.Check(x);
    cosine.Check(x);
    arctangent.Check(x);
  };
  // What the game sets: each elevation, the positions of the dial, the slants of the fans, the fragments.
  for (int degrees = 0; degrees <= 90; ++degrees) check(Single(degrees * 3.1416 / 180));
  for (int position = 0; position <= 8; ++position) check(position * Single(141.372 / 180));
  for (const double x : {3.1416 / 4, 80.0, 160.0}) check(x);
  for (int k = -32; k <= 32; ++k) check(k * std::numbers::pi / 4);

  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> angle(-3.2, 3.2), magnitude(-26, 29);
  for (int i = 0; i < 20'000; ++i) {
    check(angle(random));
    check(std::exp2(magnitude(random)));
  }
  for (const Reference& reference : {sine, cosine, arctangent}) reference.ExpectFewUndecided();
}

}  // namespace
}  // namespace quintara
