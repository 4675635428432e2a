#include "screen/choices.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "calc/sizes.h"
#include "data/text.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

using Entries = std::vector<std::optional<double>>;

constexpr int kMedium = 0;
constexpr int kAmbient = 1;
constexpr int kThickness = 2;
constexpr int kDiameter = 3;
constexpr int kHumidity = 4;

// What is usual: cold rooms and chilled water, heating, hot water and steam; degrees Celsius.
constexpr double kMediumTemperatures[] = {-40, -30, -20, -10, -5, 0,  6,  10,  12,
                                          40,  50,  60,  70,  80, 90, 95, 100, 110};
constexpr double kAmbientTemperatures[] = {-20, -15, -10, -5, 0, 5, 10, 15, 18, 20, 25, 30, 40};
constexpr double kLengths[] = {1,  2,  5,   10,  15,  20,  25,  30,  40,   50,
                               60, 80, 100, 150, 200, 250, 300, 500, 1000, 10000};

const Locale kAsRead{};  // fields read a point, whatever the user's signs are

std::string Text_Of(double number) { return Format(number, kAsRead); }

std::vector<Choice> Plain(std::span<const double> numbers) {
  std::vector<Choice> entries;
  for (const double number : numbers) entries.push_back({Text_Of(number), ""});
  return entries;
}

bool Is_Table_Row(const InputRow& row) {
  return row.index == kHumidity || (row.index == kAmbient && !row.heat_loss);
}

const Entries& Table_Of(const Warmt& warmt, const InputRow& row) {
  return row.index == kHumidity ? warmt.Dew_Hums : warmt.Dew_Temps;
}

/// The columns in front of the humidities hold none.
std::size_t First_Of(const InputRow& row) { return row.index == kHumidity ? 3 : 1; }

Choices Of_Table(const Entries& table, std::size_t first) {
  Choices choices;
  choices.entries_only = true;
  choices.limits = {table[first].value_or(0), table.back().value_or(0)};
  choices.step = choices.limits.most - choices.limits.least;
  for (std::size_t i = first; i < table.size(); ++i) {
    const double entry = table[i].value_or(0);
    choices.entries.push_back({Text_Of(entry), ""});
    if (i > first) choices.step = std::min(choices.step, entry - table[i - 1].value_or(0));
  }
  return choices;
}

Choices Of_Thickness(std::int16_t kind) {
  Choices choices{{{"0", ""}}, {0, kMostThickness}};
  for (const std::int16_t mm : Thick_Steps()) {
    choices.entries.push_back({Text_Of(mm), InchIso(mm, kind)});
  }
  return choices;
}

Choices Of_Diameter(std::int16_t kind) {
  const std::span<const StockSize> sizes = Pipe_Sizes(kind);
  Choices choices{{}, {kLeastDiameter, static_cast<double>(sizes.back().mm)}};
  for (const StockSize& size : sizes) choices.entries.push_back({Text_Of(size.mm), size.inch});
  return choices;
}

std::string With(std::string text, std::string_view sign, std::string_view by) {
  for (auto at = text.find(sign); at != std::string::npos; at = text.find(sign)) {
    text.replace(at, sign.size(), by);
  }
  return text;
}

/// With the signs that a field reads; what is no number stays none.
std::string As_Read(std::string_view typed, const Locale& locale) {
  constexpr std::string_view kMinus = "\xE2\x88\x92";  // the typographer's
  const std::string text = With(std::string(Trim(typed)), kMinus, "-");
  return locale.decimal_separator == ',' ? With(text, ",", ".") : text;
}

/// A sign, digits, and a point before, between or behind them.
bool Is_Number(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const auto digits = std::ranges::count_if(text, [](char c) { return c >= '0' && c <= '9'; });
  const auto points = std::ranges::count(text, '.');
  return digits > 0 && points <= 1 && digits + points == std::ssize(text);
}

std::size_t Nearest(double number, const std::vector<Choice>& entries) {
  const auto distance = [number](const Choice& entry) {
    return std::abs(Val(entry.text) - number);
  };
  const auto nearest = std::ranges::min_element(entries, {}, distance);
  return static_cast<std::size_t>(nearest - entries.begin());
}

/// The first entry that begins with a text; the end if none does.
std::size_t First_With(std::string_view text, const std::vector<Choice>& entries) {
  const auto begins = std::ranges::find_if(
      entries, [&](const Choice& entry) { return entry.text.starts_with(text); });
  return static_cast<std::size_t>(begins - entries.begin());
}

/// Of a number below all entries, which may be the first digits of one of them, the first that
/// begins so; else the nearest one.
std::size_t Entry_For(std::string_view text, const Choices& choices) {
  const double number = Val(text);
  const std::size_t first = First_With(text, choices.entries);
  if (number < choices.limits.least && first < choices.entries.size()) return first;
  return Nearest(number, choices.entries);
}

}  // namespace

TextField& Field_Of(Warmt& warmt, const InputRow& row) {
  if (row.index == InputRow::kLength) return warmt.txtmtrs;
  return (row.heat_loss ? warmt.txtT : warmt.txtC)(row.index);
}

Choices Choices_Of(const Warmt& warmt, const InputRow& row, std::int16_t kind) {
  if (Is_Table_Row(row)) return Of_Table(Table_Of(warmt, row), First_Of(row));
  switch (row.index) {
    case kMedium:
      return {Plain(kMediumTemperatures), kTemperatureLimits[kMedium], kTemperatureStep};
    case kAmbient:
      return {Plain(kAmbientTemperatures), kTemperatureLimits[kAmbient], kTemperatureStep};
    case kThickness:
      return Of_Thickness(kind);
    case kDiameter:
      return Of_Diameter(kind);
    default:
      return {Plain(kLengths), {0, kMostLength}};
  }
}

std::optional<std::string> Text_To_Enter(std::string_view typed, const Choices& choices,
                                         const Locale& locale) {
  const std::string text = As_Read(typed, locale);
  if (!Is_Number(text)) return std::nullopt;
  const double number = Val(text);
  if (choices.entries_only) return choices.entries[Entry_For(text, choices)].text;
  const bool allowed = choices.limits.least <= number && number <= choices.limits.most;
  return allowed ? text : Text_To_Enter(number, choices);
}

std::string Text_To_Enter(double number, const Choices& choices) {
  if (choices.entries_only) return choices.entries[Nearest(number, choices.entries)].text;
  // Here rather than by the field, which is no end to a number that 16 bits don't hold.
  return Text_Of(std::clamp(number, choices.limits.least, choices.limits.most));
}

std::size_t Place_Of(std::string_view typed, const Choices& choices, const Locale& locale) {
  const std::string text = As_Read(typed, locale);
  if (choices.entries_only) return Entry_For(text, choices);
  const std::size_t first = First_With(text, choices.entries);
  return first < choices.entries.size() ? first : Nearest(Val(text), choices.entries);
}

int Clicks_To(const Warmt& warmt, const InputRow& row, const std::string& entry) {
  // Never over the ends of the ring: what lies between two entries asks for no more insulation
  // than one of them does.
  const Entries& table = Table_Of(warmt, row);
  const auto wanted = std::find(table.begin() + static_cast<std::ptrdiff_t>(First_Of(row)),
                                table.end(), std::optional(Val(entry)));
  return static_cast<int>(wanted - table.begin()) -
         (row.index == kHumidity ? warmt.Idx_A4 : warmt.Idx_A1);
}

}  // namespace norvane
