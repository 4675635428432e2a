#pragma once

#include <functional>
#include <string>
#include <vector>

#include "spreadsheet/row_gatherer.h"
#include "spreadsheet/waiting.h"

namespace norvane {

/// Rows on their way into a spreadsheet program, which takes a block at once much faster than row
/// by row. What is gathered is written before a row that doesn't go with it, and on demand. A row
/// that can't be written then is passed over, and keeps no other from being written.
class BlockWriter {
 public:
  /// Writes one block; throws `SpreadsheetFailure` when it can't.
  using Write = std::function<void(const CellBlock& block)>;
  /// Whether nothing more can be written.
  using Lost = std::function<bool()>;

  BlockWriter(SpreadsheetWaiting& waiting, Write write, Lost lost);

  /// A row of a range, a value in UTF-8 for each of its cells.
  void Add(const CellRange& row, std::vector<CellValue> values);
  void Flush();
  /// The end of the list, for whoever was told of its progress.
  void End();

 private:
  void Write_Row_By_Row(const CellBlock& block);

  SpreadsheetWaiting& waiting_;
  Write write_;
  Lost lost_;
  RowGatherer gathered_;
  bool told_progress_ = false;
};

}  // namespace norvane
