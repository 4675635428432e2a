#include "spreadsheet/row_gatherer.h"

#include <utility>

namespace norvane {

bool RowGatherer::Takes(const CellRange& row) const {
  if (Empty()) return true;
  return row.first_column == block_.first_column &&
         row.first_row == block_.first_row + static_cast<int>(block_.rows.size()) &&
         row.Columns() == static_cast<int>(block_.rows.front().size());
}

void RowGatherer::Add(const CellRange& row, std::vector<CellValue> values) {
  if (Empty()) {
    block_.first_column = row.first_column;
    block_.first_row = row.first_row;
  }
  block_.rows.push_back(std::move(values));
}

CellBlock RowGatherer::Take() { return std::exchange(block_, CellBlock()); }

}  // namespace norvane
