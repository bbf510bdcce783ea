#include "numbers/trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

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

}  // namespace
}  // namespace quintara
