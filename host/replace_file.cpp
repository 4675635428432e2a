#include "host/replace_file.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <thread>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// The old bytes, none for a missing file; nothing for one that is there and can't be replaced.
std::optional<std::string> Old_Bytes(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return std::string();
  if (!fs::is_regular_file(status)) return std::nullopt;
  if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

#ifdef _WIN32

// Renaming over a file is atomic here too; taking turns isn't attempted.
class Turn {
 public:
  explicit Turn(const fs::path&) {}
  bool Came() const { return true; }
  void Flush() const {}
};

bool Write_Flushed(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes << std::flush;
  return file.good();
}

#else

/// An open file or folder.
class Handle {
 public:
  Handle(const fs::path& path, int flags) : number_(open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
  ~Handle() {
    if (number_ >= 0) close(number_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  int Number() const { return number_; }

 private:
  int number_;
};

/// The folder itself is the lock; the system takes it back from a process that dies.
class Turn {
 public:
  explicit Turn(const fs::path& folder) : folder_(folder, O_RDONLY | O_DIRECTORY) {
    constexpr int kTries = 3000;
    for (int i = 0; i < kTries && folder_.Number() >= 0; ++i) {
      came_ = flock(folder_.Number(), LOCK_EX | LOCK_NB) == 0;
      if (came_) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  bool Came() const { return came_; }
  void Flush() const { fsync(folder_.Number()); }

 private:
  Handle folder_;
  bool came_ = false;
};

bool Write_Flushed(const fs::path& path, const std::string& bytes) {
  const Handle file(path, O_WRONLY | O_CREAT | O_TRUNC);
  if (file.Number() < 0) return false;
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t written = write(file.Number(), bytes.data() + at, bytes.size() - at);
    if (written <= 0) return false;
    at += static_cast<std::size_t>(written);
  }
  return fsync(file.Number()) == 0;
}

#endif

}  // namespace

void Replace_File(const fs::path& name,
                  const std::function<std::string(const std::string&)>& edit) {
  std::error_code error;
  // A link stays one: what it leads to is replaced.
  const fs::path path = fs::is_symlink(name, error) ? fs::weakly_canonical(name, error) : name;
  const Turn turn(path.parent_path());
  if (!turn.Came()) return;
  const auto old_bytes = Old_Bytes(path);
  if (!old_bytes) return;
  const std::string new_bytes = edit(*old_bytes);
  if (new_bytes == *old_bytes && fs::exists(path, error)) return;
  fs::path beside = path;
  beside += ".new";
  if (Write_Flushed(beside, new_bytes)) {
    const fs::perms perms = fs::status(path, error).permissions();
    if (perms != fs::perms::unknown && perms != fs::perms::none) {
      fs::permissions(beside, perms, error);
    }
    fs::rename(beside, path, error);
    turn.Flush();
    if (!error) return;
  }
  fs::remove(beside, error);
}

}  // namespace norvane
