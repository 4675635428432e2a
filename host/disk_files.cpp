#include "host/disk_files.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "data/text.h"
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

/// The entry of a folder that has the name, in any case; the name as it is when there is none.
fs::path Entry_Of(const fs::path& folder, const std::string& name) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return folder / name;
  const std::string lower = Lower(name);
  std::vector<fs::path> fitting;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (Lower(at->path().filename().string()) == lower) fitting.push_back(at->path());
  }
  if (fitting.empty()) return folder / name;
  return *std::min_element(fitting.begin(), fitting.end());
}

/// A name with "\\" between folders, as the folder that it lies in and its last part.
std::pair<fs::path, std::string> Folder_And_Name(fs::path folder, const std::string& name) {
  std::size_t begin = 0;
  for (std::size_t end = name.find_first_of("\\/"); end != std::string::npos;
       end = name.find_first_of("\\/", begin)) {
    if (end > begin) folder = Entry_Of(folder, name.substr(begin, end - begin));
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
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::string name = at->path().filename().string();
    std::string lower = Lower(name);
    std::error_code no_status;
    if (Fits(lower, wanted) && !at->is_directory(no_status)) {
      found.emplace_back(std::move(lower), std::move(name));
    }
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  for (auto& entry : found) names.push_back(std::move(entry.second));
  return names;
}

fs::path DiskFiles::Path_Of(const std::string& name) const {
  const auto [folder, bare] = Folder_And_Name(folder_, name);
  return Entry_Of(folder, bare);
}

std::optional<std::string> DiskFiles::Read(const std::string& name) const {
  return Bytes_Of(Path_Of(name));
}

void DiskFiles::Rewrite(const std::string& name,
                        const std::function<std::string(const std::string&)>& edit) {
  Replace_File(Path_Of(name), edit);
}

}  // namespace norvane
