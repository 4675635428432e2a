#include "memory_files.h"

#include <string_view>

#include "data/text.h"

namespace norvane {
namespace {

/// Whether a name fits a pattern of "*" and "?"; both are lower case.
bool Fits(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    return Fits(name, pattern.substr(1)) || (!name.empty() && Fits(name.substr(1), pattern));
  }
  if (name.empty() || (pattern.front() != '?' && pattern.front() != name.front())) return false;
  return Fits(name.substr(1), pattern.substr(1));
}

}  // namespace

std::vector<std::string> MemoryFiles::List(const std::string& pattern) const {
  std::vector<std::string> names;
  for (const auto& [lower, file] : files_) {
    if (Fits(lower, Lower(pattern))) names.push_back(file.name);
  }
  return names;
}

std::optional<std::string> MemoryFiles::Read(const std::string& name) const {
  const auto file = files_.find(Lower(name));
  if (file == files_.end() || unreadable.contains(file->first)) return std::nullopt;
  return file->second.bytes;
}

void MemoryFiles::Rewrite(const std::string& name,
                          const std::function<std::string(const std::string&)>& edit) {
  if (!read_only) Write(name, edit(Read(name).value_or("")));
}

void MemoryFiles::Write(const std::string& name, const std::string& bytes) {
  files_.try_emplace(Lower(name), File{name, {}}).first->second.bytes = bytes;
}

void MemoryFiles::Clear() {
  files_.clear();
  unreadable.clear();
  read_only = false;
}

}  // namespace norvane
