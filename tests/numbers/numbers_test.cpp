#include "numbers/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "numbers/chance.h"

namespace quintara {
namespace {

TEST(Val, ReadsTheLeadingNumberOfAnyText) {
  const struct {
    std::string_view text;
    double value;
  } cases[] = {{"", 0},       {"15     ", 15},   {"0.003", 0.003}, {"-29.4", -29.4}, {"+7", 7},
               {" - 5", -5},  {"1 5 . 2", 15.2}, {".5", 0.5},      {"5.", 5},        {".", 0},
               {"-", 0},      {"- .", 0},        {"abc", 0},       {"1e3", 1000},    {"1e", 1},
               {"1e+", 1},    {"2E-2km", 0.02},  {"1.2.3", 1.2},   {"1-2", 1},       {"0x10", 0},
               {"1e-400", 0}, {"\t5", 0},        {"\xff\xfe", 0},  {"1,5", 1}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
  EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(Val("0.1234567890123456789"), 0.1234567890123456789);
  EXPECT_EQ(Val("-1e400"), std::numeric_limits<double>::lowest());
  EXPECT_EQ(Val(std::string(1'000'000, '9')), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("0." + std::string(1'000'000, '0') + "1"), 0);
  EXPECT_EQ(Val("1e" + std::string(1000, '9')), std::numeric_limits<double>::max());
}

TEST(ToText, DropsWhatIsNotSignificant) {
  for (const char* text : {"-5", "30", "0.003", "0.05", "-29.4", "9.37", "0.07", "22.052", "1000000"}) {
    EXPECT_EQ(ToText(Single(Val(text))), text);
    EXPECT_EQ(ToText(Val(text)), text);
  }
  EXPECT_EQ(ToText(static_cast<double>(Single(0.07)) * 100), "7.00000002980232");
  EXPECT_EQ(ToText(0.07 * 100), "7");
  EXPECT_EQ(ToText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(ToText(Single(1.0 / 3)), "0.3333333");
  EXPECT_EQ(ToText(-0.0), "0");
  EXPECT_EQ(ToText(1e20), "100000000000000000000");
  EXPECT_EQ(ToText(1e-9), "0.000000001");
  EXPECT_EQ(Left(ToText(Single(9.3712)), 4), "9.37") << "the first characters aren't rounded";
  EXPECT_EQ(Right("C:\\", 1), "\\");
  EXPECT_EQ(Right("", 1), "");
}

TEST(Format, RoundsHalvesAwayFromZeroAndShowsNoMinusSignOnIt) {
  const struct {
    double number;
    const char *whole, *twoDecimals;
  } cases[] = {{0.5, "1", "0.50"},    {2.5, "3", "2.50"},     {-2.5, "-3", "-2.50"},
               {0.125, "0", "0.13"},  {-0.125, "0", "-0.13"}, {0.05, "0", "0.05"},
               {-0.004, "0", "0.00"}, {-0.4, "0", "-0.40"},   {123456.78, "123457", "123456.78"},
               {-0.005, "0", "0.00"}};  // the single lies below the half
  for (const auto& [number, whole, twoDecimals] : cases) {
    EXPECT_EQ(Format(number, Pattern::Whole), whole) << number;
    EXPECT_EQ(Format(number, Pattern::TwoDecimals), twoDecimals) << number;
  }
}

TEST(WholeNumbers, RoundAsTheirNamesSay) {
  for (const auto& [number, rounded] :
       {std::pair{2.5, 2}, {3.5, 4}, {-2.5, -2}, {1e9, 32767}, {-1e9, -32768}})
    EXPECT_EQ(CInt(number), rounded);
  EXPECT_EQ(CLng(90.909), 91);
  EXPECT_EQ(CLng(1e300), 2147483647);
  EXPECT_EQ(CLng(std::nan("")), 0);
  EXPECT_EQ(Int(2.7), 2);
  EXPECT_EQ(Int(-0.5), -1);
}

TEST(Single, RoundsOnceAtTheStore) {
  Single step = 0.059;
  step = 15 * 0.059;
  EXPECT_EQ(step.Stored(), 0.885f);
  const Single third = 1.0 / 3;
  EXPECT_EQ(third + third, 2 * static_cast<double>(1.0f / 3)) << "sums are worked out in double precision";
  EXPECT_TRUE(Single(0.1 + 0.2) == Single(0.3)) << "and compared as singles where they are rounded first";
}

TEST(ExactText, ReadsBackToTheSameSingle) {
  EXPECT_EQ(ExactText(83.92), "83.92");
  EXPECT_EQ(ExactText(-0.0), "0");
  for (const float value : {0.1f, 1.0f / 3, 16777216.0f, 3.4e38f, -7.54e-5f}) {
    EXPECT_EQ(Single(ReadDecimal(ExactText(static_cast<double>(value))).value()).Stored(), value);
  }
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ExactText(std::nan("")), "0");
  EXPECT_EQ(ExactText(-infinity), "-340282346638528859811704183484516925440") << "the largest single";
  EXPECT_EQ(ToText(infinity).substr(0, 5), "34028");
  EXPECT_EQ(Format(std::nan(""), Pattern::TwoDecimals), "0.00");
  for (const char* text : {"", "12x", "inf"}) EXPECT_FALSE(ReadDecimal(text).has_value()) << text;
}

TEST(Chance, NeverReachesOneAndCanBeQueued) {
  Chance chance;
  chance.Queue(0.25);
  chance.Queue(0.9999999999);
  chance.Queue(0);
  chance.Randomize(1);
  EXPECT_EQ(chance.Rnd(), 0.25) << "a new seed leaves what is queued";
  EXPECT_LT(chance.Rnd(), 1.0);
  EXPECT_EQ(chance.Rnd(), 0.0);
  double sum = 0;
  for (int i = 0; i < 100'000; ++i) {
    const double value = chance.Rnd();
    ASSERT_TRUE(value >= 0 && value < 1);
    sum += value;
  }
  EXPECT_NEAR(sum / 100'000, 0.5, 0.01);

  chance.Randomize(7);
  const double first = chance.Rnd();
  chance.Randomize(7);
  EXPECT_NE(chance.Rnd(), first) << "two seedings within one tick of a clock do not repeat the draw";
}

}  // namespace
}  // namespace quintara
