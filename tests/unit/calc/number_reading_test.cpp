#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "../data/error_of.h"
#include "calc/conversions.h"
#include "constants.h"

namespace norvane {
namespace {

/// `head`, a megabyte of `sign`, `tail`.
std::string Huge(std::string_view head, char sign, std::string_view tail = "") {
  std::string text(head);
  text.append(1'000'000, sign).append(tail);
  return text;
}

int Number_Error(std::string_view text, const Locale& locale) {
  return Error_Of([&] { To_Number(text, locale); });
}

TEST(Val, ReadsAWholeNumber) {
  EXPECT_EQ(Val("80"), 80.0);
  EXPECT_EQ(Val("-50"), -50.0);
  EXPECT_EQ(Val("+7"), 7.0);
  EXPECT_EQ(Val("007"), 7.0);
}

TEST(Val, ReadsAFractionBehindAPoint) {
  EXPECT_EQ(Val("0.7"), 0.7);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("-.5"), -0.5);
  EXPECT_EQ(Val("5."), 5.0);
}

TEST(Val, EndsAtACommaOnEveryLocale) {
  EXPECT_EQ(Val("12,5"), 12.0);
  EXPECT_EQ(Val("1,250"), 1.0);
  EXPECT_EQ(Val(",5"), 0.0);
}

TEST(Val, EndsAtASecondPoint) { EXPECT_EQ(Val("1.2.3"), 1.2); }

TEST(Val, EndsAtTheFirstLetter) {
  EXPECT_EQ(Val("12abc"), 12.0);
  EXPECT_EQ(Val("60%"), 60.0);
  EXPECT_EQ(Val("3-4"), 3.0);
}

TEST(Val, GivesZeroWithoutDigits) {
  for (const char* text : {"", " ", "abc", "x12", "-", "+", ".", "-.", "--5", "+-5", ".e5", "e5",
                           "Omgevingstemperatuur"}) {
    EXPECT_EQ(Val(text), 0.0) << text;
  }
}

TEST(Val, ReadsAnExponent) {
  EXPECT_EQ(Val("1E3"), 1000.0);
  EXPECT_EQ(Val("1e3"), 1000.0);
  EXPECT_EQ(Val("2.5E+2"), 250.0);
  EXPECT_EQ(Val("25e-1"), 2.5);
  EXPECT_EQ(Val("1E003"), 1000.0);
}

TEST(Val, LeavesOutAnExponentWithoutDigits) {
  EXPECT_EQ(Val("12E"), 12.0);
  EXPECT_EQ(Val("12e+"), 12.0);
  EXPECT_EQ(Val("12e-x"), 12.0);
}

TEST(Val, TakesNoPointIntoTheExponent) { EXPECT_EQ(Val("1e2.5"), 100.0); }

TEST(Val, KnowsNoOtherExponentLetter) {
  EXPECT_EQ(Val("1D3"), 1.0);
  EXPECT_EQ(Val("1d3"), 1.0);
}

TEST(Val, KnowsNoPrefixAndNoNames) {
  for (const char* text : {"&H10", "&O17", "0x10", "0b1", "inf", "infinity", "nan", "NaN(1)"}) {
    EXPECT_EQ(Val(text), 0.0) << text;
  }
}

TEST(Val, PassesOverBlanksTabsAndLineFeedsWhereverTheyStand) {
  EXPECT_EQ(Val("  12"), 12.0);
  EXPECT_EQ(Val("1 2"), 12.0);
  EXPECT_EQ(Val("- 5"), -5.0);
  EXPECT_EQ(Val("1\t2\n3 . 5"), 123.5);
  EXPECT_EQ(Val("1 E 3"), 1000.0);
  EXPECT_EQ(Val("1e - 1 0"), 1e-10);
}

TEST(Val, EndsAtAnyOtherWhiteSpace) {
  EXPECT_EQ(Val("1\r2"), 1.0);
  EXPECT_EQ(Val("1\v2"), 1.0);
  EXPECT_EQ(Val("1\f2"), 1.0);
  EXPECT_EQ(Val("1\xA0"
                "2"),
            1.0);
}

TEST(Val, EndsAtAZeroByte) { EXPECT_EQ(Val(std::string_view("1\0002", 3)), 1.0); }

TEST(Val, TreatsEveryByteBetweenTwoDigitsByTheRule) {
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    double expected = 1;
    if (byte >= '0' && byte <= '9') expected = 102 + 10 * (byte - '0');
    if (byte == '.') expected = 1.2;
    if (byte == 'e' || byte == 'E') expected = 100;
    if (byte == ' ' || byte == '\t' || byte == '\n') expected = 12;
    EXPECT_EQ(Val(std::string("1") + byte + "2"), expected) << code;
  }
}

TEST(Val, NeverFailsOnAnyThreeBytes) {
  const std::string signs = " \t\n\r+-.,eE09&\xFF" + std::string(1, '\0');
  for (int code = 0; code < 256; ++code) {
    for (const char second : signs) {
      for (const char third : signs) {
        const std::string text{static_cast<char>(code), second, third};
        EXPECT_EQ(Error_Of([&] { EXPECT_FALSE(std::isnan(Val(text))); }), 0) << text;
      }
    }
  }
}

TEST(Val, IsInfiniteBeyondTheDoubleRange) {
  EXPECT_EQ(Val("1E999"), kInfinity);
  EXPECT_EQ(Val("-1E999"), -kInfinity);
  EXPECT_EQ(Val("1e99999999999999999999"), kInfinity);
  EXPECT_EQ(Val("1e+400"), kInfinity);
  EXPECT_EQ(Val("1e+99999999999999999999"), kInfinity);
  EXPECT_EQ(Val("1e9223372036854775807"), kInfinity);
  EXPECT_EQ(Val("10000e9223372036854775807"), kInfinity);
  EXPECT_EQ(Val(Huge("", '9')), kInfinity);
}

TEST(Val, IsZeroBelowTheDoubleRange) {
  EXPECT_EQ(Val("1E-999"), 0.0);
  EXPECT_EQ(Val("0.0001e-9223372036854775807"), 0.0);
  EXPECT_EQ(Val("0.0001e-9223372036854775808"), 0.0);
  EXPECT_EQ(Val("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(Val(Huge("0.", '0', "1")), 0.0);
}

TEST(Val, StaysZeroUnderAnyExponent) {
  EXPECT_EQ(Val("0E999"), 0.0);
  EXPECT_EQ(Val("0.0e99999999999999999999"), 0.0);
}

TEST(Val, WeighsDigitsAgainstTheExponent) {
  EXPECT_EQ(Val(Huge("25", '0', "e-1000001")), 2.5);
  EXPECT_EQ(Val(Huge("0.", '0', "25e1000001")), 2.5);
  EXPECT_EQ(Val(Huge("1", '0', "e-5")), kInfinity);
  EXPECT_EQ(Val(Huge("0.", '0', "1e5")), 0.0);
  EXPECT_EQ(Val(Huge("0.", '0', "1e+5")), 0.0);
}

TEST(Val, ReadsHugeTexts) {
  EXPECT_EQ(Val(Huge("", '0', "5")), 5.0);
  EXPECT_EQ(Val(Huge("1", ' ', "2")), 12.0);
  EXPECT_EQ(Val(Huge("5", 'x')), 5.0);
  EXPECT_EQ(Val(Huge("", '-')), 0.0);
  EXPECT_DOUBLE_EQ(Val(Huge("0.", '3')), 1.0 / 3.0);
  EXPECT_EQ(Val(Huge("1e", '9')), kInfinity);
}

TEST(ToNumber, ReadsTheDecimalSeparatorOfTheLocale) {
  EXPECT_EQ(To_Number("12.5", kPoint), 12.5);
  EXPECT_EQ(To_Number("12,5", kComma), 12.5);
  EXPECT_EQ(To_Number(".5", kPoint), 0.5);
  EXPECT_EQ(To_Number(",5", kComma), 0.5);
}

TEST(ToNumber, SkipsTheGroupSeparatorOfTheLocale) {
  EXPECT_EQ(To_Number("1,250.5", kPoint), 1250.5);
  EXPECT_EQ(To_Number("1.250,5", kComma), 1250.5);
}

TEST(ToNumber, TakesTheOtherLocalesDecimalSeparatorForAGroupSeparator) {
  EXPECT_EQ(To_Number("12,5", kPoint), 125.0);
  EXPECT_EQ(To_Number("12.5", kComma), 125.0);
}

TEST(ToNumber, AllowsBlanksAroundTheNumber) {
  EXPECT_EQ(To_Number(" 18 ", kPoint), 18.0);
  EXPECT_EQ(To_Number("   -18   ", kComma), -18.0);
}

TEST(ToNumber, AllowsASign) {
  EXPECT_EQ(To_Number("-3", kPoint), -3.0);
  EXPECT_EQ(To_Number("+3", kPoint), 3.0);
}

TEST(ToNumber, AllowsAnExponent) {
  EXPECT_EQ(To_Number("1e3", kPoint), 1000.0);
  EXPECT_EQ(To_Number("1,5E+2", kComma), 150.0);
  EXPECT_EQ(To_Number("15e-1", kPoint), 1.5);
}

TEST(ToNumber, RefusesAnEmptyText) {
  EXPECT_EQ(Number_Error("", kPoint), 13);
  EXPECT_EQ(Number_Error("   ", kComma), 13);
}

TEST(ToNumber, RefusesATextThatIsNoNumber) {
  for (const char* text : {"abc",  "12x", "x12", "1 2", "60%", "-",   "+",     ".",
                           ",",    "--1", "1-",  "e5",  "1e",  "1e+", "1e2.5", "&H10",
                           "0x10", "1D3", "inf", "nan", "\t5", "5\n", "5\r\n", "\xA0"}) {
    EXPECT_EQ(Number_Error(text, kPoint), 13) << text;
  }
  EXPECT_EQ(Number_Error(std::string_view("5\0", 2), kPoint), 13);
}

TEST(ToNumber, RefusesASecondDecimalSeparator) {
  EXPECT_EQ(Number_Error("1.2.3", kPoint), 13);
  EXPECT_EQ(Number_Error("1,2,3", kComma), 13);
}

TEST(ToNumber, OverflowsBeyondTheDoubleRange) {
  EXPECT_EQ(Number_Error("1E999", kPoint), 6);
  EXPECT_EQ(Number_Error("-1E999", kComma), 6);
  EXPECT_EQ(Number_Error(Huge("", '9'), kPoint), 6);
}

TEST(ToNumber, TreatsEveryByteBetweenTwoDigitsByTheRule) {
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    const std::string text = std::string("1") + byte + "2";
    double expected = 0;
    if (byte >= '0' && byte <= '9') expected = 102 + 10 * (byte - '0');
    if (byte == '.') expected = 1.2;
    if (byte == ',') expected = 12;
    if (byte == 'e' || byte == 'E') expected = 100;
    if (expected != 0) {
      EXPECT_EQ(To_Number(text, kPoint), expected) << code;
    } else {
      EXPECT_EQ(Number_Error(text, kPoint), 13) << code;
    }
  }
}

TEST(ToNumber, ReadsHugeTexts) {
  EXPECT_EQ(To_Number(Huge("", ' ') + Huge("5", ' '), kPoint), 5.0);
  EXPECT_EQ(To_Number(Huge("", '0', "5"), kPoint), 5.0);
  EXPECT_EQ(Number_Error(Huge("", 'x'), kPoint), 13);
}

}  // namespace
}  // namespace norvane
