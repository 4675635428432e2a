#include "host/disk_files.h"

#include <algorithm>
#include <utility>

#include "data/text.h"
#include "host/folder.h"
#include "host/plain_file.h"
#include "host/replace_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// Whether a name fits a pattern of "*" and "?"; both are lower case.
bool Fits(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t star_name = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      star_name = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++n;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++star_name;
    } else {
      return false;
    }
  }
  return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(p), pattern.end(),
                     [](char c) { return c == '*'; });
}

/// The entry of a folder that has the name, in any case of its ASCII letters.
std::optional<std::string> Entry_Of(const fs::path& folder, const std::string& name) {
  if (Has_Entry(folder, name)) return name;
  const std::string lower = Lower(name);
  std::optional<std::string> fitting;
  for (const FolderEntry& entry : Entries_Of(folder)) {
    if (Lower(entry.name) == lower && (!fitting || entry.name < *fitting)) fitting = entry.name;
  }
  return fitting;
}

/// The same as a path; the name as it is when there is none.
fs::path Entry_Path(const fs::path& folder, const std::string& name) {
  return Path_In(folder, Entry_Of(folder, name).value_or(name));
}

/// A name with "\\" between folders, as the folder that it lies in and its last part.
std::pair<fs::path, std::string> Folder_And_Name(fs::path folder, const std::string& name) {
  std::size_t begin = 0;
  for (std::size_t end = name.find_first_of("\\/"); end != std::string::npos;
       end = name.find_first_of("\\/", begin)) {
    if (end > begin) folder = Entry_Path(folder, name.substr(begin, end - begin));
    begin = end + 1;
  }
  return {folder, name.substr(begin)};
}

}  // namespace

DiskFiles::DiskFiles(fs::path folder) : folder_(std::move(folder)) {}

std::vector<std::string> DiskFiles::List(const std::string& pattern) const {
  const auto [folder, name_pattern] = Folder_And_Name(folder_, pattern);
  const std::string wanted = Lower(name_pattern);
  std::vector<std::pair<std::string, std::string>> found;  // lower case, as it stands
  for (FolderEntry& entry : Entries_Of(folder)) {
    std::string lower = Lower(entry.name);
    if (!entry.is_folder && Fits(lower, wanted)) {
      found.emplace_back(std::move(lower), std::move(entry.name));
    }
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  for (auto& entry : found) names.push_back(std::move(entry.second));
  return names;
}

fs::path DiskFiles::Path_Of(const std::string& name) const {
  const auto [folder, bare] = Folder_And_Name(folder_, name);
  return Entry_Path(folder, bare);
}

std::optional<std::string> DiskFiles::Read(const std::string& name) const {
  const auto [folder, bare] = Folder_And_Name(folder_, name);
  const auto entry = Entry_Of(folder, bare);
  return entry ? Bytes_Of(Path_In(folder, *entry)) : std::nullopt;
}

void DiskFiles::Rewrite(const std::string& name,
                        const std::function<std::string(const std::string&)>& edit) {
  Replace_File(Path_Of(name), edit);
}

}  // namespace norvane
