#include "spreadsheet/block_writer.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace norvane {
namespace {

constexpr std::size_t kRowsAtOnce = 500;
constexpr std::size_t kLongList = 1000;

}  // namespace

BlockWriter::BlockWriter(SpreadsheetWaiting& waiting, Write write, Lost lost)
    : waiting_(waiting), write_(std::move(write)), lost_(std::move(lost)) {}

void BlockWriter::Add(const CellRange& row, std::vector<CellValue> values) {
  if (!gathered_.Takes(row)) Flush();
  gathered_.Add(row, std::move(values));
}

void BlockWriter::Flush() {
  const CellBlock all = gathered_.Take();
  const std::size_t total = all.rows.size();
  for (std::size_t done = 0; done < total && !lost_();) {
    const std::size_t end = std::min(done + kRowsAtOnce, total);
    CellBlock part{all.first_column, all.first_row + static_cast<int>(done), {}};
    part.rows.assign(all.rows.begin() + static_cast<std::ptrdiff_t>(done),
                     all.rows.begin() + static_cast<std::ptrdiff_t>(end));
    try {
      write_(part);
    } catch (const SpreadsheetFailure&) {
      Write_Row_By_Row(part);
    }
    done = end;
    if (total < kLongList) continue;
    waiting_.Progress(static_cast<int>(done), static_cast<int>(total));
    told_progress_ = true;
  }
}

void BlockWriter::Write_Row_By_Row(const CellBlock& block) {
  if (block.rows.size() == 1) return;  // that was the row that can't be written
  int row = block.first_row;
  for (const auto& values : block.rows) {
    if (lost_()) return;
    try {
      write_({block.first_column, row++, {values}});
    } catch (const SpreadsheetFailure&) {
      // As with any step that fails, the next one is tried.
    }
  }
}

void BlockWriter::End() {
  gathered_.Take();
  if (std::exchange(told_progress_, false)) waiting_.Progress(0, 0);
}

}  // namespace norvane
