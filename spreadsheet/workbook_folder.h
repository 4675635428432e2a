#pragma once

#include <filesystem>

namespace norvane {

/// A new folder, under a name that nobody can foretell, in the user's folder for temporary files;
/// from its first moment nobody else can look into it. Those of earlier exports that have been left
/// alone for a week go. Throws `SpreadsheetFailure` when there can't be one.
std::filesystem::path New_Workbook_Folder();

}  // namespace norvane
