#pragma once

#include <filesystem>
#include <memory>

#include "platform/spreadsheet.h"
#include "spreadsheet/waiting.h"

namespace norvane {

/// The spreadsheet program of this machine: LibreOffice Calc, or else Excel, or else a workbook
/// file that is handed to the desktop; whichever is there first, and nothing where none of them
/// is. The program's folder holds the workbooks and the plug-in. `waiting` has to live as long as
/// what is returned.
std::unique_ptr<Spreadsheet> Make_Spreadsheet(const std::filesystem::path& program_folder,
                                              SpreadsheetWaiting& waiting);

}  // namespace norvane
