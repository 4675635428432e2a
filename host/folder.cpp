#include "host/folder.h"

#include <system_error>

namespace norvane {

namespace fs = std::filesystem;

std::vector<FolderEntry> Entries_Of(const fs::path& folder) {
  std::vector<FolderEntry> entries;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code no_status;
    entries.push_back({at->path().filename().string(), at->is_directory(no_status)});
  }
  return entries;
}

fs::path To_Path(const std::string& name) { return name; }

fs::path Path_In(const fs::path& folder, const std::string& name) { return folder / name; }

bool Has_Entry(const fs::path& folder, const std::string& name) {
  std::error_code error;
  return fs::exists(folder / name, error);
}

}  // namespace norvane
