#pragma once

#include <map>
#include <set>

#include "platform/files.h"

namespace norvane {

/// The files of a folder that lies in memory.
class MemoryFiles : public Files {
 public:
  std::vector<std::string> List(const std::string& pattern) const override;
  std::optional<std::string> Read(const std::string& name) const override;
  void Rewrite(const std::string& name,
               const std::function<std::string(const std::string&)>& edit) override;

  void Write(const std::string& name, const std::string& bytes);
  void Clear();

  /// Files that are listed but can't be opened, in lower case.
  std::set<std::string> unreadable;
  /// Whether the folder can't be written to.
  bool read_only = false;

 private:
  struct File {
    std::string name;
    std::string bytes;
  };
  std::map<std::string, File> files_;  // by the lower-case spelling of the name
};

}  // namespace norvane
