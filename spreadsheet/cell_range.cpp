#include "spreadsheet/cell_range.h"

#include <charconv>
#include <string_view>

#include "host/code_page.h"

namespace norvane {
namespace {

struct Cell {
  int column;
  int row;
};

Cell Read_Cell(std::string_view text) {
  if (text.empty() || text[0] < 'A' || text[0] > 'Z') throw SpreadsheetFailure();
  int number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data() + 1, end, number);
  if (read.ec != std::errc() || read.ptr != end || number < 1) throw SpreadsheetFailure();
  return {text[0] - 'A', number - 1};
}

std::string Cell_Text(int column, int row) {
  return static_cast<char>('A' + column) + std::to_string(row + 1);
}

}  // namespace

std::string Range_Text(const CellRange& range) {
  return Cell_Text(range.first_column, range.first_row) + ":" +
         Cell_Text(range.last_column, range.last_row);
}

CellRange Read_Range(const std::string& text) {
  const std::size_t colon = text.find(':');
  const Cell first = Read_Cell(std::string_view(text).substr(0, colon));
  const Cell last =
      colon == std::string::npos ? first : Read_Cell(std::string_view(text).substr(colon + 1));
  if (last.column < first.column || last.row < first.row) throw SpreadsheetFailure();
  return {first.column, first.row, last.column, last.row};
}

CellRange Read_Row(const std::string& text, const std::vector<CellValue>& values) {
  const CellRange row = Read_Range(text);
  if (row.Rows() != 1 || row.Columns() != static_cast<int>(values.size())) {
    throw SpreadsheetFailure();
  }
  return row;
}

std::vector<CellValue> In_Utf8(const std::vector<CellValue>& values, int charset) {
  std::vector<CellValue> converted = values;
  for (CellValue& value : converted) {
    if (auto* text = std::get_if<std::string>(&value)) *text = To_Utf8(*text, charset);
  }
  return converted;
}

}  // namespace norvane
