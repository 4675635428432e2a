#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "spreadsheet/cell_range.h"

namespace norvane {

/// The cells of a workbook of one sheet. Rows are counted from 0, texts are UTF-8.
struct Workbook {
  using Row = std::vector<std::optional<CellValue>>;

  std::map<int, Row> rows;
  std::vector<CellRange> bold;
};

/// The plug-in's one function; its name changes with what it takes. It writes the book to a new
/// file and tells whether that went well.
using WriteWorkbook = bool(const Workbook& book, const std::filesystem::path& file);
inline constexpr const char* kWriteWorkbook = "norvane_write_workbook_1";

}  // namespace norvane
