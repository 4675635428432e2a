#include "host/folder.h"

#include <windows.h>

#include <algorithm>

#include "host/windows/wide.h"

namespace norvane {
namespace fs = std::filesystem;

std::vector<FolderEntry> Entries_Of(const fs::path& folder) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((Long_Path(folder) + LR"(\*)").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return entries;
  do {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    entries.push_back({Utf8(name), (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
  } while (FindNextFileW(search, &found) != 0);
  FindClose(search);
  return entries;
}

fs::path To_Path(const std::string& name) { return Wide(name); }

fs::path Path_In(const fs::path& folder, const std::string& name) { return folder / To_Path(name); }

bool Has_Entry(const fs::path& folder, const std::string& name) {
  // Asked for by its name, an entry would be found in another case and by its short name, too.
  const std::vector<FolderEntry> entries = Entries_Of(folder);
  return std::any_of(entries.begin(), entries.end(),
                     [&](const FolderEntry& entry) { return entry.name == name; });
}

}  // namespace norvane
