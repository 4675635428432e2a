#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace norvane {

/// A file that has its name only when it is whole: until `Commit` it lies beside its place, and
/// without one it is removed. A link stays one: what it leads to is replaced.
class UnfinishedFile {
 public:
  /// Creates the file beside `path`. Throws `std::system_error` when it can't be.
  explicit UnfinishedFile(const std::filesystem::path& path);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  /// Open for writing, unbuffered, until `Commit`.
  std::FILE* File() const { return file_; }
  /// Where it lies before `Commit`.
  const std::filesystem::path& Beside() const { return beside_; }

  /// Closes the file and gives it its name. Throws `std::system_error` when that can't be done.
  void Commit();

 private:
  std::filesystem::path path_;
  std::filesystem::path beside_;
  std::FILE* file_ = nullptr;
};

}  // namespace norvane
