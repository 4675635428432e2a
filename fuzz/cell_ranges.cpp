// The texts of cells and ranges, such as "B4" or "A1:T500": one is read as it would be written, or
// refused.
//
// Input: how many values a row has; the text.

#include <optional>

#include "input.h"
#include "require.h"
#include "spreadsheet/cell_range.h"

namespace norvane {
namespace {

std::optional<CellRange> Range_Of(const std::string& text) {
  try {
    return Read_Range(text);
  } catch (const SpreadsheetFailure&) {
    return std::nullopt;
  }
}

std::string Cell(int column, int row) {
  return static_cast<char>('A' + column) + std::to_string(row + 1);
}

/// The text without the zeros in front of a row, which nobody writes.
std::string Without_Zeros(const std::string& text) {
  std::string plain;
  for (const char letter : text) {
    const bool in_front =
        plain.empty() || plain.back() == ':' || (plain.back() >= 'A' && plain.back() <= 'Z');
    if (letter != '0' || !in_front) plain.push_back(letter);
  }
  return plain;
}

void Check_Row(const std::string& text, const std::optional<CellRange>& range, std::size_t count) {
  const std::vector<CellValue> values(count, 1.5);
  bool taken = true;
  try {
    Require(Read_Row(text, values) == *range, "a row is the range that it is");
  } catch (const SpreadsheetFailure&) {
    taken = false;
  }
  Require(taken == (range && range->Rows() == 1 && range->Columns() == static_cast<int>(count)),
          "a row has a value for each of its cells");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  const std::size_t count = input.Below(28);
  const std::string text = input.Bytes(size);
  const auto range = Range_Of(text);
  Check_Row(text, range, count);
  if (!range) return 0;
  Require(0 <= range->first_column && range->first_column <= range->last_column &&
              range->last_column < 26 && 0 <= range->first_row &&
              range->first_row <= range->last_row,
          "a range goes from left to right, from above to below");
  const std::string first = Cell(range->first_column, range->first_row);
  const std::string last = Cell(range->last_column, range->last_row);
  const std::string plain = Without_Zeros(text);
  Require(plain == first + ":" + last || (first == last && plain == first),
          "a range is read as it is written");
  Require(Range_Of(first + ":" + last) == range, "its text is read back");
  return 0;
}
