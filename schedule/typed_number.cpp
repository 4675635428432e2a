#include "schedule/typed_number.h"

#include <algorithm>
#include <optional>

#include "data/csv.h"

namespace norvane {
namespace {

/// The same number with another decimal sign; nothing when it is no number in the first one.
std::optional<std::string> Rewritten(std::string_view text, char from, char to) {
  double number = 0;
  if (!Read_Number(text, from, number)) return std::nullopt;
  std::string rewritten(text);
  std::replace(rewritten.begin(), rewritten.end(), from, to);
  return rewritten;
}

}  // namespace

std::string Number_To_Keep(std::string_view typed, char locale_decimal, char schedule_decimal) {
  if (auto kept = Rewritten(typed, '.', schedule_decimal)) return *kept;
  if (locale_decimal == ',' || schedule_decimal == ',') {
    if (auto kept = Rewritten(typed, ',', schedule_decimal)) return *kept;
  }
  return std::string(typed);
}

std::string Number_To_Show(std::string_view field, char schedule_decimal, char locale_decimal) {
  return Rewritten(field, schedule_decimal, locale_decimal).value_or(std::string(field));
}

}  // namespace norvane
