#include "spreadsheet/workbook_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <string>
#include <system_error>

#include "host/folder.h"
#include "host/random_digits.h"
#include "platform/spreadsheet.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBegin = "norvane-";
constexpr std::size_t kNameSize = 8 + 32;
constexpr std::time_t kWeek = std::time_t{7} * 24 * 60 * 60;

bool Is_Left_Alone(const fs::path& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && status.st_uid == geteuid() &&
         status.st_mtime < std::time(nullptr) - kWeek;
}

/// A folder that an export has made. A workbook in it that the user has kept writing to stays, too.
bool Is_Of_The_Past(const fs::path& path) {
  const std::string name = path.filename().string();
  std::error_code error;
  if (!name.starts_with(kBegin) || name.size() != kNameSize ||
      name.find_first_not_of("0123456789abcdef", kNameSize - 32) != std::string::npos ||
      !fs::is_directory(fs::symlink_status(path, error)) || !Is_Left_Alone(path)) {
    return false;
  }
  for (const FolderEntry& entry : Entries_Of(path)) {
    if (!Is_Left_Alone(path / entry.name)) return false;
  }
  return true;
}

void Remove_Those_Of_The_Past(const fs::path& temporary) {
  for (const FolderEntry& entry : Entries_Of(temporary)) {
    const fs::path path = temporary / entry.name;
    std::error_code kept;
    if (Is_Of_The_Past(path)) fs::remove_all(path, kept);
  }
}

}  // namespace

fs::path New_Workbook_Folder() {
  std::error_code error;
  const fs::path temporary = fs::temp_directory_path(error);
  if (error) throw SpreadsheetFailure();
  Remove_Those_Of_The_Past(temporary);
  fs::path folder = temporary / (kBegin + Random_Digits());
  if (mkdir(folder.c_str(), S_IRWXU) != 0) throw SpreadsheetFailure();
  return folder;
}

}  // namespace norvane
