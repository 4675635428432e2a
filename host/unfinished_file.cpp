#include "host/unfinished_file.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace norvane {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Throw_Error(int number, const fs::path& path) {
  throw std::system_error(number, std::generic_category(), path.string());
}

/// Where the bytes are to lie in the end.
fs::path Target(const fs::path& name) {
  std::error_code error;
  return fs::is_symlink(name, error) ? fs::weakly_canonical(name, error) : name;
}

}  // namespace

UnfinishedFile::UnfinishedFile(const fs::path& path) : path_(Target(path)) {
  // A name that is free: what a crash has left behind, or another program writes, isn't touched.
  constexpr int kTries = 1000;
  for (int i = 0; i < kTries && file_ == nullptr; ++i) {
    beside_ = path_;
    beside_ += ".part" + std::to_string(i);
    file_ = std::fopen(beside_.string().c_str(), "wbx");
    if (file_ == nullptr && errno != EEXIST) break;
  }
  if (file_ == nullptr) Throw_Error(errno, path_);
  std::setvbuf(file_, nullptr, _IONBF, 0);
}

UnfinishedFile::~UnfinishedFile() {
  if (file_ != nullptr) std::fclose(file_);
  std::error_code error;
  if (!beside_.empty()) fs::remove(beside_, error);
}

void UnfinishedFile::Commit() {
  if (std::fclose(std::exchange(file_, nullptr)) != 0) Throw_Error(errno, path_);
  fs::rename(beside_, path_);
  beside_.clear();
}

}  // namespace norvane
