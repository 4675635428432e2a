// Numbers from any text, and the texts of any numbers, against the C library and against one
// another, in both locales.
//
// Input: a double and a single by their bytes, a mask; the text.

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "calc/conversions.h"
#include "calc/sizes.h"
#include "data/runtime_error.h"
#include "input.h"
#include "require.h"

namespace norvane {
namespace {

/// The result, or nothing where it ends in a runtime error that it may end in.
template <class Procedure>
auto Or_Error(std::initializer_list<int> allowed, const Procedure& procedure)
    -> std::optional<decltype(procedure())> {
  try {
    return procedure();
  } catch (const RuntimeError& error) {
    for (const int number : allowed) {
      if (number == error.number()) return std::nullopt;
    }
    Require(false, "runtime error " + std::to_string(error.number()) + " in a conversion");
    return std::nullopt;
  }
}

bool Same_Double(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

/// `Val` reads what the C library reads of the same letters without blanks.
void Check_Val(const std::string& text) {
  std::string dense;
  for (const char c : text) {
    if (c == ' ' || c == '\t' || c == '\n') continue;
    if (std::strchr("0123456789+-.eE", c) == nullptr || c == '\0') break;
    dense += c;
  }
  Require(Same_Double(Val(text), std::strtod(dense.c_str(), nullptr)), "Val reads the number");
  Or_Error({RuntimeError::kOverflow}, [&] { return To_Int16(Val(text)); });
  Or_Error({RuntimeError::kOverflow}, [&] { return To_Single(Val(text)); });
}

void Check_Double(double value, const Locale& locale) {
  const auto text = Or_Error({RuntimeError::kOverflow}, [&] { return Format(value, locale); });
  Require(text.has_value() == std::isfinite(value), "every finite number has a text");
  if (!text) return;
  // Fifteen digits of a number near the end of the range may lie beyond it.
  const auto read = Or_Error({RuntimeError::kOverflow}, [&] { return To_Number(*text, locale); });
  if (!read) {
    Require(std::abs(value) > 1.7e308, "the text of a number is a number");
    return;
  }
  Require(std::abs(*read - value) <= std::abs(value) * 1e-14, "a text holds fifteen digits");
  Require(Format(*read, locale) == *text, "a text that is read back stays as it is");
}

void Check_Mask(double value, const char* mask, const Locale& locale) {
  if (!std::isfinite(value)) return;
  const std::string text = Format(value, mask, locale);
  const char* point = std::strchr(mask, '.');
  const auto decimals = point == nullptr ? 0 : std::strlen(point + 1);
  const std::size_t at = text.find(locale.decimal_separator);
  Require(decimals == 0 ? at == text.npos : text.size() - at - 1 == decimals,
          "a mask gives its decimals");
  const auto read = Or_Error({RuntimeError::kOverflow}, [&] { return To_Number(text, locale); });
  if (!read) return;
  const double half = 0.5 * std::pow(10, -static_cast<double>(decimals));
  Require(std::abs(*read - value) <= half * 1.0001 + std::abs(value) * 1e-14,
          "a mask rounds to the nearest");
  Require(text.front() != '-' || *read < 0, "a zero has no sign");
}

/// The fewest digits, at most seven, by the C library.
int Fewest_Digits(float value) {
  for (int digits = 1; digits < 7; ++digits) {
    char text[32];
    std::snprintf(text, sizeof(text), "%.*e", digits - 1, static_cast<double>(value));
    if (std::strtof(text, nullptr) == value) return digits;
  }
  return 7;
}

int Digits_Of(const std::string& text) {
  std::string digits;
  for (const char c : text.substr(0, text.find('E'))) {
    if (c >= '0' && c <= '9') digits += c;
  }
  const std::size_t first = digits.find_first_not_of('0');
  if (first == digits.npos) return 1;
  return static_cast<int>(digits.find_last_not_of('0') - first + 1);
}

void Check_Single(float value, const Locale& locale) {
  const auto text =
      Or_Error({RuntimeError::kOverflow}, [&] { return Text_Of_Single(value, locale); });
  Require(text.has_value() == std::isfinite(value), "every finite single has a text");
  if (!text) return;
  const auto read =
      Or_Error({RuntimeError::kOverflow}, [&] { return To_Single(To_Number(*text, locale)); });
  if (!read) {
    Require(std::abs(value) > 3.402823e38F, "the text of a single is a single");
    return;
  }
  const int fewest = Fewest_Digits(value);
  Require(Digits_Of(*text) <= fewest, "the text of a single has the fewest digits");
  char seven[32];
  std::snprintf(seven, sizeof(seven), "%.6e", static_cast<double>(value));
  const bool seven_suffice = fewest < 7 || std::strtof(seven, nullptr) == value;
  Require(!seven_suffice || *read == value, "the text of a single reads back");
  Require(Text_Of_Single(*read, locale) == *text, "a text that is read back stays as it is");
}

void Check_Text(const std::string& text, const Locale& locale) {
  const auto number = Or_Error({RuntimeError::kOverflow, RuntimeError::kTypeMismatch},
                               [&] { return To_Number(text, locale); });
  if (number) Check_Double(*number, locale);
}

void Check_Int16(std::int16_t value, const Locale& locale) {
  Require(Val(Str(value)) == value, "Str reads back");
  Require(std::abs(To_Number(Fahr(value, locale), locale) - (32 + value * 1.8)) < 1e-9,
          "Fahrenheit");
  for (std::int16_t kind = 0; kind <= 3; ++kind) {
    Require(Inch(value, kind).size() <= 5 && InchIso(value, kind).size() <= 5, "inches are short");
  }
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  constexpr const char* kMasks[] = {"##0.0", "0.000", "####0.00", "####0.0", "0", "000.0"};
  Input input(data, size);
  const auto number = input.Raw_Number<double>();
  const auto single = input.Raw_Number<float>();
  const char* mask = kMasks[input.Below(std::size(kMasks))];
  const std::string text = input.Bytes(size);
  Check_Val(text);
  for (const Locale locale : {Locale{'.'}, Locale{','}}) {
    Check_Text(text, locale);
    Check_Double(number, locale);
    Check_Double(single, locale);
    Check_Single(single, locale);
    Check_Mask(number, mask, locale);
    Check_Int16(static_cast<std::int16_t>(number > -32768 && number < 32767 ? number : 0), locale);
  }
  return 0;
}
