#include "host/held_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "host/open_file.h"

namespace norvane {

class HeldFile::Hold {
 public:
  explicit Hold(const std::filesystem::path& path)
      : path_(path),
        file_(open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600)) {}

  State Take() const {
    // Who makes the file has it for himself.
    if (!file_.Is_Open()) return errno == EACCES ? State::kTaken : State::kUnknown;
    if (flock(file_.Number(), LOCK_EX | LOCK_NB) != 0) {
      return errno == EWOULDBLOCK ? State::kTaken : State::kUnknown;
    }
    return Is_Still_There() ? State::kHeld : State::kTaken;
  }
  void Remove() const { unlink(path_.c_str()); }

 private:
  /// It may have been removed while it was opened here.
  bool Is_Still_There() const {
    struct stat opened {};
    struct stat there {};
    return fstat(file_.Number(), &opened) == 0 && lstat(path_.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
  }

  std::filesystem::path path_;
  OpenFile file_;
};

HeldFile::HeldFile(const std::filesystem::path& path)
    : hold_(std::make_unique<Hold>(path)), state_(hold_->Take()) {}

HeldFile::~HeldFile() = default;

void HeldFile::Remove() {
  if (state_ == State::kHeld) hold_->Remove();
}

}  // namespace norvane
