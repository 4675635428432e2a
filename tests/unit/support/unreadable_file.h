#pragma once

#include <filesystem>

namespace norvane {

/// A file that is there and can't be opened: a pipe that nobody writes to, or where the system has
/// no such thing, a file that this process has for itself.
class UnreadableFile {
 public:
  explicit UnreadableFile(const std::filesystem::path& path);
  ~UnreadableFile();
  UnreadableFile(const UnreadableFile&) = delete;
  UnreadableFile& operator=(const UnreadableFile&) = delete;

 private:
  [[maybe_unused]] void* handle_ = nullptr;  // a pipe needs none
};

}  // namespace norvane
