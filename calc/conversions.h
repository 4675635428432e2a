#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

/// The user's number signs, as far as the program follows them.
struct Locale {
  char decimal_separator = '.';  ///< '.' or ','

  /// The sign between groups of digits: the comma on a point locale, the point on a comma locale.
  char Group_Separator() const { return decimal_separator == ',' ? '.' : ','; }
};

/// Reads the longest numeric prefix of `text`, the point being its only decimal separator; blanks,
/// tabs and line feeds are passed over wherever they stand. Never fails: no digits give 0, a value
/// beyond the double range is infinite.
/// @param text what a field or a table holds
double Val(std::string_view text);

/// Rounds to the nearest signed 16-bit integer, ties to even.
/// Throws `RuntimeError` 6 when the value doesn't fit.
/// @param value any number
std::int16_t To_Int16(double value);

/// Rounds to single precision. Throws `RuntimeError` 6 when the value doesn't fit.
/// @param value any number
float To_Single(double value);

/// The platform's default conversion of a text to a number: surrounding blanks, a sign, the
/// locale's decimal separator and an exponent are understood, group separators are skipped.
/// Throws `RuntimeError` 13 for any other text, the empty one included, and 6 when out of range.
/// @param text what a field or a file holds
/// @param locale the user's number signs
double To_Number(std::string_view text, const Locale& locale);

/// The bare number, at most 15 significant digits, in exponent form from 1E+15 upward.
/// Throws `RuntimeError` 6 for a value that isn't finite.
/// @param value the number to show
/// @param locale the user's number signs
std::string Format(double value, const Locale& locale);

/// The number under a mask of '#' and '0' with a point before its decimals, as in "##0.0". The
/// decimal text of the number (at most 15 significant digits, of a single 7) is rounded half away
/// from zero. Throws `RuntimeError` 6 for a value that isn't finite.
/// @param value the number to show
/// @param mask such as "0" or "####0.00"
/// @param locale the user's number signs
std::string Format(double value, std::string_view mask, const Locale& locale);
std::string Format(float value, std::string_view mask, const Locale& locale);

/// The fewest digits, at most seven, that read back as the same single; exponent form from 1E+07.
/// Throws `RuntimeError` 6 for a value that isn't finite.
/// @param value the number to show
/// @param locale the user's number signs
std::string Text_Of_Single(float value, const Locale& locale);

/// The number behind a blank, or behind its minus sign when it is negative.
/// @param value the number to show
std::string Str(int value);

/// Degrees Celsius in degrees Fahrenheit, as many decimals as the value needs.
/// @param oC whole degrees Celsius
/// @param locale the user's number signs
std::string Fahr(std::int16_t oC, const Locale& locale);

/// `dividend` / `divisor`. Throws `RuntimeError` 11 when the divisor is zero.
/// @param dividend any number
/// @param divisor any number but zero
double Divide(double dividend, double divisor);

/// The natural logarithm. Throws `RuntimeError` 5 for zero and below.
/// @param value a number above zero
double Natural_Log(double value);

}  // namespace norvane
