#include "host/folder.h"

#include <dirent.h>

#include <memory>
#include <string_view>
#include <system_error>

namespace norvane {

namespace fs = std::filesystem;

// The standard library's own iterator ends the process when it is out of memory.
std::vector<FolderEntry> Entries_Of(const fs::path& folder) {
  std::vector<FolderEntry> entries;
  const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), closedir);
  if (open == nullptr) return entries;
  while (const dirent* entry = readdir(open.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    std::error_code no_status;
    entries.push_back({std::string(name), fs::is_directory(folder / name, no_status)});
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
