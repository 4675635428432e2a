#include "screen/model/grid.h"

#include <utility>

#include "data/runtime_error.h"

namespace norvane {

const std::string& Grid::Cell(int row, int column) const {
  if (row < 0 || row >= Rows() || column < 0 || column >= Cols()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  static const std::string kEmpty;
  const auto& cells = rows_[static_cast<std::size_t>(row)];
  const auto at = static_cast<std::size_t>(column);
  return at < cells.size() ? cells[at] : kEmpty;
}

double Grid::ColWidth(int column) const {
  if (column < 0 || column >= Cols()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  return column_widths_[static_cast<std::size_t>(column)];
}

void Grid::Set_Row(int row) {
  if (row < 0 || row >= Rows()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  row_ = row;
  row_sel_ = row;
  Notify(Attribute::kRow);
}

void Grid::Start(std::vector<std::string> captions, std::vector<double> column_widths) {
  rows_.clear();
  rows_.push_back(std::move(captions));
  column_widths_ = std::move(column_widths);
  row_ = 0;
  row_sel_ = 0;
  Notify(Attribute::kCells);
}

void Grid::Add_Item(const std::string& text) {
  rows_.push_back(Split(text, '\t'));
  Notify(Attribute::kCells);
}

void Grid::Pick_Rows(int from, int to) {
  row_ = from;
  row_sel_ = to;
  Notify(Attribute::kRow);
  if (On_Mouse_Up) On_Mouse_Up();
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  std::size_t begin = 0;
  for (std::size_t at = text.find(separator); at != std::string::npos;
       at = text.find(separator, begin)) {
    parts.push_back(text.substr(begin, at - begin));
    begin = at + 1;
  }
  parts.push_back(text.substr(begin));
  return parts;
}

}  // namespace norvane
