#include "calc/conversions.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <string>

#include "../data/error_of.h"
#include "constants.h"

namespace norvane {
namespace {

TEST(Locale, GroupsWithTheSignThatIsNotItsDecimalSeparator) {
  EXPECT_EQ(kPoint.Group_Separator(), ',');
  EXPECT_EQ(kComma.Group_Separator(), '.');
}

TEST(RoundingTo16Bits, TakesTheNearestInteger) {
  EXPECT_EQ(To_Int16(2.4), 2);
  EXPECT_EQ(To_Int16(2.6), 3);
  EXPECT_EQ(To_Int16(-2.4), -2);
  EXPECT_EQ(To_Int16(-2.6), -3);
}

TEST(RoundingTo16Bits, GivesTiesToTheEvenNeighbour) {
  EXPECT_EQ(To_Int16(0.5), 0);
  EXPECT_EQ(To_Int16(1.5), 2);
  EXPECT_EQ(To_Int16(2.5), 2);
  EXPECT_EQ(To_Int16(3.5), 4);
  EXPECT_EQ(To_Int16(-0.5), 0);
  EXPECT_EQ(To_Int16(-1.5), -2);
  EXPECT_EQ(To_Int16(-2.5), -2);
}

TEST(RoundingTo16Bits, TakesWhateverRoundsIntoTheRange) {
  EXPECT_EQ(To_Int16(32767.0), 32767);
  EXPECT_EQ(To_Int16(32767.49), 32767);
  EXPECT_EQ(To_Int16(-32768.0), -32768);
  EXPECT_EQ(To_Int16(-32768.5), -32768);
}

TEST(RoundingTo16Bits, OverflowsBeyondTheRange) {
  for (const double value : {32767.5, 32768.0, -32768.51, -32769.0, 1e10, -1e300}) {
    EXPECT_EQ(Error_Of([&] { To_Int16(value); }), 6) << value;
  }
}

TEST(RoundingTo16Bits, OverflowsForWhatIsNotFinite) {
  for (const double value : {kInfinity, -kInfinity, kNan}) {
    EXPECT_EQ(Error_Of([&] { To_Int16(value); }), 6) << value;
  }
}

TEST(RoundingToSingle, TakesTheNearestSingle) {
  EXPECT_EQ(To_Single(0.1), 0.1F);
  EXPECT_EQ(To_Single(16777217.0), 16777216.0F);
  EXPECT_EQ(To_Single(16777219.0), 16777220.0F);
  EXPECT_EQ(To_Single(-0.032), -0.032F);
}

TEST(RoundingToSingle, LetsTheSmallestValuesBecomeZero) { EXPECT_EQ(To_Single(1e-50), 0.0F); }

TEST(RoundingToSingle, TakesWhateverRoundsToTheLargestSingle) {
  const double halfway_to_the_next = std::ldexp(33554431.0, 103);
  EXPECT_EQ(To_Single(double{FLT_MAX}), FLT_MAX);
  EXPECT_EQ(To_Single(std::nextafter(halfway_to_the_next, 0.0)), FLT_MAX);
  EXPECT_EQ(Error_Of([&] { To_Single(halfway_to_the_next); }), 6);
}

TEST(RoundingToSingle, OverflowsBeyondTheRange) {
  for (const double value : {1e39, -1e39, DBL_MAX, kInfinity, -kInfinity, kNan}) {
    EXPECT_EQ(Error_Of([&] { To_Single(value); }), 6) << value;
  }
}

TEST(Str, PutsABlankBeforeANumberThatIsNotNegative) {
  EXPECT_EQ(Str(30), " 30");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(17), " 17");
}

TEST(Str, PutsTheMinusInPlaceOfTheBlank) { EXPECT_EQ(Str(-100), "-100"); }

TEST(Str, WritesTheWholeRangeOfIntegers) {
  EXPECT_EQ(Str(INT_MAX), " 2147483647");
  EXPECT_EQ(Str(INT_MIN), "-2147483648");
}

TEST(Fahr, ConvertsDegreesCelsius) {
  EXPECT_EQ(Fahr(80, kPoint), "176");
  EXPECT_EQ(Fahr(24, kPoint), "75.2");
  EXPECT_EQ(Fahr(-7, kPoint), "19.4");
  EXPECT_EQ(Fahr(-40, kPoint), "-40");
  EXPECT_EQ(Fahr(0, kPoint), "32");
}

TEST(Fahr, FollowsTheLocale) { EXPECT_EQ(Fahr(24, kComma), "75,2"); }

TEST(Fahr, ShowsTheInexactFactorWhereTheSumNearlyVanishes) {
  // 1.8 is no exact double. Close to 0 degrees Fahrenheit its error reaches the fifteenth digit.
  EXPECT_EQ(Fahr(-18, kPoint), "-0.399999999999999");
}

TEST(Fahr, IsExactForEveryOtherTemperature) {
  for (int oC = -32768; oC <= 32767; ++oC) {
    if (oC == -18) continue;
    const int tenths = 320 + 18 * oC;
    std::string exact(tenths < 0 ? 1 : 0, '-');
    exact.append(std::to_string(std::abs(tenths) / 10));
    if (tenths % 10 != 0) exact.append(1, '.').append(std::to_string(std::abs(tenths) % 10));
    ASSERT_EQ(Fahr(static_cast<std::int16_t>(oC), kPoint), exact) << oC;
  }
}

TEST(Divide, IsAPlainDivision) { EXPECT_EQ(Divide(1.0, 8.0), 0.125); }

TEST(Divide, FailsForAZeroDivisor) {
  for (const double dividend : {1.0, -1.0, 0.0}) {
    EXPECT_EQ(Error_Of([&] { Divide(dividend, 0.0); }), 11) << dividend;
    EXPECT_EQ(Error_Of([&] { Divide(dividend, -0.0); }), 11) << dividend;
  }
}

TEST(NaturalLog, IsTheNaturalLogarithm) {
  EXPECT_EQ(Natural_Log(1.0), 0.0);
  EXPECT_DOUBLE_EQ(Natural_Log(10.0), 2.302585092994046);
}

TEST(NaturalLog, FailsForZeroAndBelow) {
  for (const double value : {0.0, -0.0, -1e-300, -1.0, -kInfinity}) {
    EXPECT_EQ(Error_Of([&] { Natural_Log(value); }), 5) << value;
  }
}

}  // namespace
}  // namespace norvane
