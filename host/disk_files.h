#pragma once

#include <filesystem>

#include "platform/files.h"

namespace norvane {

/// The files of a folder on disk.
class DiskFiles : public Files {
 public:
  explicit DiskFiles(std::filesystem::path folder);

  std::vector<std::string> List(const std::string& pattern) const override;
  std::optional<std::string> Read(const std::string& name) const override;
  void Rewrite(const std::string& name,
               const std::function<std::string(const std::string&)>& edit) override;

  /// Where a file lies, in the spelling of the folder; where it would lie when it isn't there.
  /// @param name bare, or with "\\" between folders
  std::filesystem::path Path_Of(const std::string& name) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace norvane
