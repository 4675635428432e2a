#include <system_error>

#include "host/random_digits.h"
#include "platform/spreadsheet.h"
#include "spreadsheet/workbook_folder.h"

namespace norvane {

// The folder for temporary files is the user's alone here, and the system clears it.
std::filesystem::path New_Workbook_Folder() {
  std::error_code error;
  const auto folder = std::filesystem::temp_directory_path(error) / ("norvane-" + Random_Digits());
  if (error || !std::filesystem::create_directory(folder, error)) throw SpreadsheetFailure();
  return folder;
}

}  // namespace norvane
