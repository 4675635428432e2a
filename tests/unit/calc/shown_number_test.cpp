#include "calc/shown_number.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "../data/error_of.h"
#include "calc/conversions.h"

namespace norvane {
namespace {

constexpr std::array<const char*, kMostDecimals + 1> kMasks = {"0", "##0.0", "####0.00", "0.000"};

std::string Text(std::int64_t shown, int decimals, char separator = '.') {
  std::array<char, kLongestShown> text;
  return {text.data(), Write_Shown(text.data(), shown, decimals, separator)};
}

template <class Number>
void Expect_As_Format(Number value) {
  for (int decimals = 0; decimals <= kMostDecimals; ++decimals) {
    const auto mask = kMasks[static_cast<std::size_t>(decimals)];
    ASSERT_EQ(Text(Shown(value, decimals), decimals), Format(value, mask, Locale{}))
        << std::hexfloat << value << " under " << mask;
  }
}

TEST(ShownNumber, CountsUnitsOfTheLastDecimal) {
  EXPECT_EQ(Shown(36.579F, 2), 3658);
  EXPECT_EQ(Shown(-0.04F, 1), 0);
  EXPECT_EQ(Shown(1.955, 1), 20);
  EXPECT_EQ(Shown(0.0F, 3), 0);
}

TEST(ShownNumber, IsWrittenWithTheDecimalSignThatIsAskedFor) {
  EXPECT_EQ(Text(3658, 2), "36.58");
  EXPECT_EQ(Text(3658, 2, ','), "36,58");
  EXPECT_EQ(Text(-5, 1), "-0.5");
  EXPECT_EQ(Text(7, 3), "0.007");
  EXPECT_EQ(Text(0, 0), "0");
  EXPECT_EQ(Text(std::numeric_limits<std::int64_t>::min(), 3), "-9223372036854775.808");
}

TEST(ShownNumber, OfTiesAndTheirNeighboursIsThatOfFormat) {
  for (int i = -40000; i <= 40000; ++i) {
    const float tie = static_cast<float>(i) / 2000;
    Expect_As_Format(tie);
    Expect_As_Format(std::nextafter(tie, 100.0F));
    Expect_As_Format(i / 2000.0);
    Expect_As_Format(std::nextafter(i / 2000.0, -100.0));
    // Ties behind the seventh digit.
    Expect_As_Format(static_cast<float>(1234567 + i) + 0.5F);
  }
}

TEST(ShownNumber, OfRandomNumbersOfEverySizeIsThatOfFormat) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> exponent(-5, 12);
  for (int i = 0; i < 100000; ++i) {
    const double value = std::pow(10, exponent(random)) * (i % 2 == 0 ? 1 : -1);
    Expect_As_Format(value);
    Expect_As_Format(static_cast<float>(value));
    // Few digits, so that many lie on ties.
    Expect_As_Format(std::round(value * 1000) / 1000);
  }
}

TEST(ShownNumber, OfAnySingleIsThatOfFormat) {
  std::mt19937 random(11);
  for (int i = 0; i < 100000; ++i) {
    const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (std::abs(value) < 1e15F) Expect_As_Format(value);
  }
}

TEST(ShownNumber, ThatNoCountHoldsIsAnOverflow) {
  EXPECT_EQ(Error_Of([] { Shown(std::numeric_limits<float>::infinity(), 1); }), 6);
  EXPECT_EQ(Error_Of([] { Shown(std::nan(""), 1); }), 6);
  EXPECT_EQ(Error_Of([] { Shown(1e30, 2); }), 6);
  EXPECT_EQ(Error_Of([] { Shown(1e17F, 3); }), 6);
}

}  // namespace
}  // namespace norvane
