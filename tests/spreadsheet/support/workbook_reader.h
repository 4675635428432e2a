#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "platform/spreadsheet.h"

namespace norvane {

/// The cells of the first sheet of a workbook file, by places such as "B3", as any program reads
/// them that knows the format alone. Throws std::runtime_error when the file isn't an archive of
/// well-formed parts, or a number in it isn't written as XML writes numbers, with a point.
std::map<std::string, CellValue> Cells_Of_Workbook(const std::filesystem::path& file);

}  // namespace norvane
