#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>
#include <string>

#include "../data/error_of.h"
#include "calc/conversions.h"
#include "constants.h"

namespace norvane {
namespace {

TEST(FormatWithoutMask, WritesWholeNumbersBare) {
  EXPECT_EQ(Format(0.0, kPoint), "0");
  EXPECT_EQ(Format(80.0, kPoint), "80");
  EXPECT_EQ(Format(-50.0, kPoint), "-50");
  EXPECT_EQ(Format(10000.0, kPoint), "10000");
}

TEST(FormatWithoutMask, WritesAsManyDecimalsAsNeeded) {
  EXPECT_EQ(Format(12.5, kPoint), "12.5");
  EXPECT_EQ(Format(0.1 + 0.2, kPoint), "0.3");
  EXPECT_EQ(Format(75.2, kPoint), "75.2");
}

TEST(FormatWithoutMask, KeepsTheLeadingZero) {
  EXPECT_EQ(Format(0.5, kPoint), "0.5");
  EXPECT_EQ(Format(-0.5, kPoint), "-0.5");
}

TEST(FormatWithoutMask, FollowsTheLocale) {
  EXPECT_EQ(Format(0.7, kComma), "0,7");
  EXPECT_EQ(Format(1.5e20, kComma), "1,5E+20");
}

TEST(FormatWithoutMask, WritesAtMostFifteenSignificantDigits) {
  EXPECT_EQ(Format(1.0 / 3.0, kPoint), "0.333333333333333");
  EXPECT_EQ(Format(2.0 / 3.0, kPoint), "0.666666666666667");
  EXPECT_EQ(Format(200.0 / 3.0, kPoint), "66.6666666666667");
  EXPECT_EQ(Format(0.038 - 0.032, kPoint), "0.006");
}

TEST(FormatWithoutMask, WritesSmallNumbersInPlainDigits) {
  EXPECT_EQ(Format(0.00001, kPoint), "0.00001");
  EXPECT_EQ(Format(1e-20, kPoint), "0.00000000000000000001");
}

TEST(FormatWithoutMask, TurnsToTheExponentFormAt1E15) {
  EXPECT_EQ(Format(1e14, kPoint), "100000000000000");
  EXPECT_EQ(Format(999999999999999.0, kPoint), "999999999999999");
  EXPECT_EQ(Format(1e15, kPoint), "1E+15");
  EXPECT_EQ(Format(-1e20, kPoint), "-1E+20");
  EXPECT_EQ(Format(1e100, kPoint), "1E+100");
  EXPECT_EQ(Format(123456789012345678.0, kPoint), "1.23456789012346E+17");
}

TEST(FormatWithoutMask, LooksAtTheRoundedDigitsForTheExponentForm) {
  EXPECT_EQ(Format(999999999999999.9, kPoint), "1E+15");
}

TEST(FormatWithoutMask, WritesTheNegativeZeroWithoutSign) { EXPECT_EQ(Format(-0.0, kPoint), "0"); }

TEST(FormatWithoutMask, OverflowsForWhatIsNotFinite) {
  for (const double value : {kInfinity, -kInfinity, kNan}) {
    EXPECT_EQ(Error_Of([&] { Format(value, kPoint); }), 6);
  }
}

TEST(FormatWithMask, WritesTheDecimalsOfTheMask) {
  EXPECT_EQ(Format(12.5, "##0.0", kPoint), "12.5");
  EXPECT_EQ(Format(12.5, "0.000", kPoint), "12.500");
  EXPECT_EQ(Format(12.0, "####0.00", kPoint), "12.00");
  EXPECT_EQ(Format(12.0, "##0", kPoint), "12");
}

TEST(FormatWithMask, FollowsTheLocale) {
  EXPECT_EQ(Format(0.039125F, "0.000", kComma), "0,039");
  EXPECT_EQ(Format(812.5, "####0.0", kComma), "812,5");
}

TEST(FormatWithMask, ForcesTheDigitsThatTheMaskHasZerosFor) {
  EXPECT_EQ(Format(0.0, "##0.0", kPoint), "0.0");
  EXPECT_EQ(Format(0.0, "###.0", kPoint), ".0");
  EXPECT_EQ(Format(0.5, "##0.0", kPoint), "0.5");
  EXPECT_EQ(Format(5.0, "000", kPoint), "005");
}

TEST(FormatWithMask, WritesMoreWholeDigitsThanTheMaskHas) {
  EXPECT_EQ(Format(12345.67, "##0.0", kPoint), "12345.7");
  EXPECT_EQ(Format(1e10, "0.00", kPoint), "10000000000.00");
}

TEST(FormatWithMask, WritesNoGroupSeparator) {
  EXPECT_EQ(Format(1234567.0, "####0.00", kPoint), "1234567.00");
}

TEST(FormatWithMask, StaysInPlainDigitsForLargeNumbers) {
  EXPECT_EQ(Format(1e15, "##0.0", kPoint), "1000000000000000.0");
  EXPECT_EQ(Format(1e20, "##0.0", kPoint), "100000000000000000000.0");
}

TEST(FormatWithMask, RoundsHalfAwayFromZero) {
  EXPECT_EQ(Format(0.25, "0.0", kPoint), "0.3");
  EXPECT_EQ(Format(-0.25, "0.0", kPoint), "-0.3");
  EXPECT_EQ(Format(2.5, "0", kPoint), "3");
  EXPECT_EQ(Format(24.25F, "##0.0", kPoint), "24.3");
}

TEST(FormatWithMask, RoundsTheDecimalTextAndNotTheBinaryValue) {
  // Each of these lies a little below the tie that its decimal text shows.
  EXPECT_EQ(Format(0.35F, "0.0", kPoint), "0.4");
  EXPECT_EQ(Format(2.675, "####0.00", kPoint), "2.68");
  EXPECT_EQ(Format(1.005, "####0.00", kPoint), "1.01");
}

TEST(FormatWithMask, RoundsDownBelowTheHalf) {
  EXPECT_EQ(Format(1.9499, "##0.0", kPoint), "1.9");
  EXPECT_EQ(Format(1.955, "##0.0", kPoint), "2.0");
  EXPECT_EQ(Format(0.0004999, "0.000", kPoint), "0.000");
}

TEST(FormatWithMask, CarriesIntoANewDigit) {
  EXPECT_EQ(Format(999.95, "##0.0", kPoint), "1000.0");
  EXPECT_EQ(Format(0.9996, "0.000", kPoint), "1.000");
  EXPECT_EQ(Format(0.05, "0.0", kPoint), "0.1");
}

TEST(FormatWithMask, ShowsNoMinusForWhatRoundsToZero) {
  EXPECT_EQ(Format(-0.04, "##0.0", kPoint), "0.0");
  EXPECT_EQ(Format(-0.0F, "##0.0", kPoint), "0.0");
  EXPECT_EQ(Format(-0.05, "##0.0", kPoint), "-0.1");
}

TEST(FormatWithMask, ShowsSevenSignificantDigitsOfASingle) {
  EXPECT_EQ(Format(123456792.0F, "0.0", kPoint), "123456800.0");
  EXPECT_EQ(Format(123456.789F, "0.0000", kPoint), "123456.8000");
  EXPECT_EQ(Format(0.1F, "0.000000000", kPoint), "0.100000000");
}

TEST(FormatWithMask, ShowsFifteenSignificantDigitsOfADouble) {
  EXPECT_EQ(Format(123456789.123456789, "0.0000000", kPoint), "123456789.1234570");
  EXPECT_EQ(Format(0.1, "0.00000000000000000000", kPoint), "0.10000000000000000000");
}

TEST(FormatWithMask, OverflowsForWhatIsNotFinite) {
  for (const double value : {kInfinity, -kInfinity, kNan}) {
    EXPECT_EQ(Error_Of([&] { Format(value, "##0.0", kPoint); }), 6);
    EXPECT_EQ(Error_Of([&] { Format(static_cast<float>(value), "##0.0", kPoint); }), 6);
  }
}

TEST(TextOfSingle, WritesTheFewestDigitsThatReadBack) {
  EXPECT_EQ(Text_Of_Single(0.032F, kPoint), "0.032");
  EXPECT_EQ(Text_Of_Single(0.0320001F, kPoint), "0.0320001");
  EXPECT_EQ(Text_Of_Single(12.5F, kPoint), "12.5");
  EXPECT_EQ(Text_Of_Single(10.0F, kPoint), "10");
  EXPECT_EQ(Text_Of_Single(-0.5F, kPoint), "-0.5");
  EXPECT_EQ(Text_Of_Single(0.0F, kPoint), "0");
}

TEST(TextOfSingle, FollowsTheLocale) {
  EXPECT_EQ(Text_Of_Single(0.032F, kComma), "0,032");
  EXPECT_EQ(Text_Of_Single(0.034F, kComma), "0,034");
}

TEST(TextOfSingle, WritesAtMostSevenDigits) {
  EXPECT_EQ(Text_Of_Single(1.0F / 3.0F, kPoint), "0.3333333");
  EXPECT_EQ(Text_Of_Single(16777216.0F, kPoint), "1.677722E+07");
}

TEST(TextOfSingle, TurnsToTheExponentFormAt1E7) {
  EXPECT_EQ(Text_Of_Single(1000000.0F, kPoint), "1000000");
  EXPECT_EQ(Text_Of_Single(9999999.0F, kPoint), "9999999");
  EXPECT_EQ(Text_Of_Single(10000000.0F, kPoint), "1E+07");
  EXPECT_EQ(Text_Of_Single(-2.5e20F, kComma), "-2,5E+20");
}

TEST(TextOfSingle, WritesSmallNumbersInPlainDigits) {
  EXPECT_EQ(Text_Of_Single(0.00001F, kPoint), "0.00001");
}

TEST(TextOfSingle, OverflowsForWhatIsNotFinite) {
  const float infinity = std::numeric_limits<float>::infinity();
  for (const float value : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(Error_Of([&] { Text_Of_Single(value, kPoint); }), 6);
  }
}

/// The fewest significant digits, at most seven, of which the nearest decimal reads back.
int Digits_Needed(float value) {
  for (int digits = 1; digits < 7; ++digits) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*e", digits - 1, static_cast<double>(value));
    if (std::strtof(text, nullptr) == value) return digits;
  }
  return 7;
}

/// The significant digits of a text: neither the zeros that only place the point, nor an exponent.
int Significant_Digits(const std::string& text) {
  std::string digits;
  for (const char sign : text.substr(0, text.find('E'))) {
    if (sign >= '0' && sign <= '9') digits += sign;
  }
  digits.erase(0, digits.find_first_not_of('0'));
  digits.erase(digits.find_last_not_of('0') + 1);
  return static_cast<int>(digits.size());
}

TEST(TextOfSingle, NeedsNoMoreDigitsAndReadsBackForAnySingle) {
  std::mt19937 random(20240501);
  for (int count = 0; count < 20000; ++count) {
    const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isnormal(value)) continue;
    const std::string text = Text_Of_Single(value, kPoint);
    const int needed = Digits_Needed(value);
    ASSERT_LE(Significant_Digits(text), needed) << text;
    float read = 0;
    std::istringstream(text) >> read;
    if (needed < 7) {
      ASSERT_EQ(read, value) << text;
    }
  }
}

}  // namespace
}  // namespace norvane
