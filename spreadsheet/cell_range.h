#pragma once

#include <string>
#include <vector>

#include "platform/spreadsheet.h"

namespace norvane {

/// A range of cells, columns and rows counted from 0, the last ones included.
struct CellRange {
  int first_column = 0;
  int first_row = 0;
  int last_column = 0;
  int last_row = 0;

  int Columns() const { return last_column - first_column + 1; }
  int Rows() const { return last_row - first_row + 1; }
  bool Holds(int column, int row) const {
    return first_column <= column && column <= last_column && first_row <= row && row <= last_row;
  }
  bool operator==(const CellRange&) const = default;
};

/// The range of a text such as "B4" or "A1:T500", columns "A" to "Z" only. Throws
/// `SpreadsheetFailure` for another text.
CellRange Read_Range(const std::string& text);

/// The text of a range, with both its corners: "A1:A1" for a single cell. Columns "A" to "Z".
std::string Range_Text(const CellRange& range);

/// As `Read_Range`, for a range of one row that has a value for each of its cells.
CellRange Read_Row(const std::string& text, const std::vector<CellValue>& values);

/// The values with their texts in UTF-8; `charset` is the Windows character set that they come in.
std::vector<CellValue> In_Utf8(const std::vector<CellValue>& values, int charset);

/// Rows of the same columns below one another, with their values. Texts are UTF-8.
struct CellBlock {
  int first_column = 0;
  int first_row = 0;
  std::vector<std::vector<CellValue>> rows;
};

}  // namespace norvane
