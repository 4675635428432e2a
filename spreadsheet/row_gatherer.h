#pragma once

#include <vector>

#include "spreadsheet/cell_range.h"

namespace norvane {

/// Rows that are written one after the other, gathered into one block.
class RowGatherer {
 public:
  /// Whether the row goes into the block: it is the first one, or has the same columns as the row
  /// right above it.
  bool Takes(const CellRange& row) const;

  /// Adds a row that `Takes` has agreed to, a value for each of its cells.
  void Add(const CellRange& row, std::vector<CellValue> values);

  bool Empty() const { return block_.rows.empty(); }
  /// Hands the block over and starts anew.
  CellBlock Take();

 private:
  CellBlock block_;
};

}  // namespace norvane
