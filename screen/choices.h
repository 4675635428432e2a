#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/conversions.h"
#include "calc/limits.h"

namespace norvane {

class TextField;
class Warmt;

/// An input row of the main screen, in one of its two modes.
struct InputRow {
  static constexpr int kLength = 5;

  int index;       ///< as in the arrays of `Warmt`, `kLength` for the length
  bool heat_loss;  ///< of the two modes; true of the length, which is in both

  bool operator==(const InputRow&) const = default;
};

/// All of them but the thickness of condensation, which is a result.
inline constexpr InputRow kInputRows[] = {
    {0, true},  {1, true},  {2, true},  {3, true}, {InputRow::kLength, true},
    {0, false}, {1, false}, {3, false}, {4, false}};

/// The field of a row.
TextField& Field_Of(Warmt& warmt, const InputRow& row);

/// A number that an input field can be given, in the field's unit.
struct Choice {
  std::string text;  ///< as the field reads it
  std::string inch;  ///< what the trade calls it, empty for most
};

/// What an input field can be given.
struct Choices {
  std::vector<Choice> entries;  ///< ascending
  Limits limits;
  /// What a value differs by from the next one, at the least.
  double step = 1;
  /// The field is locked: clicks on its spin pair lead to the entries, and to nothing else.
  bool entries_only = false;
};

/// What the field of a row can be given. Throws `RuntimeError` 9 for the diameter of a sheet.
/// @param warmt holds the lists of condensation
/// @param row not the thickness of condensation, which is a result
/// @param kind the `Kind` of object
Choices Choices_Of(const Warmt& warmt, const InputRow& row, std::int16_t kind);

/// What a number as a person writes it is for the field: with a point for the locale's comma, and
/// cut to the limits; where there are only entries, the nearest one, or the first that begins with
/// a number below them all. Nothing for what isn't a number.
/// @param typed UTF-8
/// @param choices those of the field
/// @param locale the user's number signs
std::optional<std::string> Text_To_Enter(std::string_view typed, const Choices& choices,
                                         const Locale& locale);

/// The place of the first entry that begins with what is typed so far, else of the nearest one.
/// @param typed UTF-8
/// @param choices those of the field, with one entry at least
/// @param locale the user's number signs
std::size_t Place_Of(std::string_view typed, const Choices& choices, const Locale& locale);

/// The same for a number that comes as such.
std::string Text_To_Enter(double number, const Choices& choices);

/// How many clicks on the spin pair of a locked field lead to an entry, up (above 0) or down.
/// @param warmt the main screen as it stands
/// @param row a row whose field is locked
/// @param entry the text of one of its entries
int Clicks_To(const Warmt& warmt, const InputRow& row, const std::string& entry);

}  // namespace norvane
