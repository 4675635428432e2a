#include "calc/conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "calc/decimal.h"
#include "data/runtime_error.h"
#include "data/text.h"

namespace norvane {
namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

/// Moves `at` behind the digits of `text` and tells how many they were.
std::size_t Skip_Digits(std::string_view text, std::size_t& at) {
  const std::size_t first = at;
  while (at < text.size() && Is_Digit(text[at])) ++at;
  return at - first;
}

/// The length of the number at the front of `text`: a sign, digits with a point, an exponent.
/// 0 when no digit is there.
std::size_t Numeric_Prefix(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = Skip_Digits(text, at);
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += Skip_Digits(text, at);
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (Skip_Digits(text, exponent) > 0) at = exponent;
  }
  return at;
}

/// Whether a number that no double holds is too large rather than too small; it isn't zero.
bool Is_Beyond_Range(std::string_view number) {
  const std::size_t e = number.find_first_of("eE");
  const std::string_view mantissa = number.substr(0, e);
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long long>(mantissa.find_first_of("123456789"));
  long long exponent = 0;
  if (e != std::string_view::npos) {
    const bool negative = number[e + 1] == '-';
    const char* digits = number.data() + e + 1 + (number[e + 1] == '+' || negative ? 1 : 0);
    const auto read = std::from_chars(digits, number.data() + number.size(), exponent);
    if (read.ec != std::errc()) return !negative;
    if (negative) exponent = -exponent;
  }
  // The exponent may be the largest of its kind: nothing is added to it.
  return exponent > first - point;
}

/// The double nearest to `number`, which `Numeric_Prefix` has found whole.
double Read_Number(std::string_view number) {
  const bool negative = number.front() == '-';
  if (negative || number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    value = Is_Beyond_Range(number) ? std::numeric_limits<double>::infinity() : 0;
  }
  return negative ? -value : value;
}

void Require_Finite(double value) {
  if (!std::isfinite(value)) throw RuntimeError(RuntimeError::kOverflow);
}

}  // namespace

double Val(std::string_view text) {
  std::string dense;
  dense.reserve(std::min<std::size_t>(text.size(), 64));
  for (const char c : text) {
    if (c == ' ' || c == '\t' || c == '\n') continue;
    if (!Is_Digit(c) && c != '+' && c != '-' && c != '.' && c != 'e' && c != 'E') break;
    dense.push_back(c);
  }
  const std::size_t length = Numeric_Prefix(dense);
  return length == 0 ? 0 : Read_Number(std::string_view(dense).substr(0, length));
}

std::int16_t To_Int16(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    throw RuntimeError(RuntimeError::kOverflow);
  }
  return static_cast<std::int16_t>(rounded);
}

float To_Single(double value) {
  const auto single = static_cast<float>(value);
  Require_Finite(single);
  return single;
}

double To_Number(std::string_view text, const Locale& locale) {
  std::string number;
  for (const char c : Trim(text)) {
    if (c == locale.Group_Separator()) continue;
    number.push_back(c == locale.decimal_separator ? '.' : c);
  }
  if (number.empty() || Numeric_Prefix(number) != number.size()) {
    throw RuntimeError(RuntimeError::kTypeMismatch);
  }
  const double value = Read_Number(number);
  Require_Finite(value);
  return value;
}

std::string Format(double value, const Locale& locale) {
  Require_Finite(value);
  return Decimal(value, kDoubleDigits).Bare(kDoubleDigits, locale.decimal_separator);
}

std::string Format(double value, std::string_view mask, const Locale& locale) {
  Require_Finite(value);
  return Decimal(value, kDoubleDigits).Under_Mask(mask, locale.decimal_separator);
}

std::string Format(float value, std::string_view mask, const Locale& locale) {
  Require_Finite(value);
  return Decimal(value, kSingleDigits).Under_Mask(mask, locale.decimal_separator);
}

std::string Text_Of_Single(float value, const Locale& locale) {
  Require_Finite(value);
  return Decimal(value, kSingleDigits).Bare(kSingleDigits, locale.decimal_separator);
}

std::string Str(int value) {
  std::string text(value < 0 ? 0 : 1, ' ');
  return text.append(std::to_string(value));
}

std::string Fahr(std::int16_t oC, const Locale& locale) {
  return Format(32.0 + oC * (9.0 / 5.0), locale);
}

double Divide(double dividend, double divisor) {
  if (divisor == 0) throw RuntimeError(RuntimeError::kDivisionByZero);
  return dividend / divisor;
}

double Natural_Log(double value) {
  if (!(value > 0)) throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  return std::log(value);
}

}  // namespace norvane
