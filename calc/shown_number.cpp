#include "calc/shown_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "calc/conversions.h"
#include "data/runtime_error.h"

namespace norvane {
namespace {

constexpr std::array<const char*, kMostDecimals + 1> kMasks = {"0", "0.0", "0.00", "0.000"};
constexpr std::array<std::int64_t, 10> kPowers = {1,      10,      100,      1000,      10000,
                                                  100000, 1000000, 10000000, 100000000, 1000000000};

std::int64_t Power(int exponent) { return kPowers[static_cast<std::size_t>(exponent)]; }

/// By way of the text: any number, some twenty times as slow.
template <class Number>
std::int64_t Shown_As_Text(Number value, int decimals) {
  std::string text = Format(value, kMasks[static_cast<std::size_t>(decimals)], Locale{});
  text.erase(std::remove(text.begin(), text.end(), '.'), text.end());
  std::int64_t shown = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), shown);
  if (read.ec != std::errc()) throw RuntimeError(RuntimeError::kOverflow);
  return shown;
}

}  // namespace

std::int64_t Shown(float value, int decimals) {
  // The text of a single has seven digits, which are the nearest to it: between 0.01 and 10^7 they
  // lie further apart than singles do. The product with so small a power of ten is exact in double
  // precision, so that its nearest integer is the seven digits.
  constexpr double kLeast = 0.01;
  constexpr double kEightDigits = 1e7;
  const double size = std::abs(static_cast<double>(value));
  if (size == 0) return 0;
  if (!(size >= kLeast && size < kEightDigits)) return Shown_As_Text(value, decimals);
  int places = 8;
  while (size * static_cast<double>(Power(places)) >= kEightDigits) --places;
  std::int64_t digits = std::llrint(size * static_cast<double>(Power(places)));
  if (places > decimals) {
    const std::int64_t dropped = Power(places - decimals);
    digits = (digits + dropped / 2) / dropped;
  } else {
    digits *= Power(decimals - places);
  }
  return value < 0 ? -digits : digits;
}

std::int64_t Shown(double value, int decimals) {
  // Fifteen digits and the product are off by less than this share: where no tie between two counts
  // lies so close, the nearest one is shown.
  constexpr double kDoubt = 1e-14;
  constexpr double kMost = 1e11;
  const double size = std::abs(value) * static_cast<double>(Power(decimals));
  if (!(size < kMost)) return Shown_As_Text(value, decimals);
  const double whole = std::floor(size);
  const double beyond_tie = size - whole - 0.5;
  if (std::abs(beyond_tie) <= size * kDoubt) return Shown_As_Text(value, decimals);
  const auto digits = static_cast<std::int64_t>(whole) + (beyond_tie > 0 ? 1 : 0);
  return value < 0 ? -digits : digits;
}

char* Write_Shown(char* to, std::int64_t shown, int decimals, char decimal_separator) {
  auto size = static_cast<std::uint64_t>(shown);
  if (shown < 0) {
    *to++ = '-';
    size = 0 - size;
  }
  std::array<char, kLongestShown> digits;
  char* const end = digits.data() + digits.size();
  char* first = end;
  for (int count = 0; size > 0 || count <= decimals; ++count) {
    if (count == decimals && decimals > 0) *--first = decimal_separator;
    *--first = static_cast<char>('0' + size % 10);
    size /= 10;
  }
  return std::copy(first, end, to);
}

}  // namespace norvane
