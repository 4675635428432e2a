#include "host/new_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <memory>
#include <string_view>
#include <utility>

#include "host/random_digits.h"

namespace norvane {
namespace {

constexpr mode_t kOwn = 0666;  // less what the user's mask takes away
constexpr mode_t kUserAlone = 0600;
constexpr mode_t kPermissions = 0777;
constexpr std::string_view kEnding = ".new";
constexpr std::size_t kDigits = 32;
constexpr std::time_t kAtWork = 600;  // seconds

bool Is_Rest_Of(std::string_view name, std::string_view place) {
  if (name.size() != place.size() + 1 + kDigits + kEnding.size()) return false;
  const std::string_view digits = name.substr(place.size() + 1, kDigits);
  return name.starts_with(place) && name[place.size()] == '.' && name.ends_with(kEnding) &&
         digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

bool Is_Forgotten(int folder, const char* name) {
  struct stat status {};
  return fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode) &&
         status.st_uid == geteuid() && status.st_mtime < std::time(nullptr) - kAtWork;
}

}  // namespace

NewFile::NewFile(int folder, std::string place, bool of_its_own)
    : folder_(folder),
      place_(std::move(place)),
      name_(place_ + '.' + Random_Digits() + std::string(kEnding)),
      file_(openat(folder, name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                   of_its_own ? kOwn : kUserAlone)) {}

NewFile::~NewFile() {
  if (Is_Open() && !in_place_) unlinkat(folder_, name_.c_str(), 0);
}

bool NewFile::Take_Over(const struct stat& old) {
  struct stat status {};
  const int file = file_.Number();
  if (fstat(file, &status) != 0) return false;
  if (status.st_uid != old.st_uid && fchown(file, old.st_uid, static_cast<gid_t>(-1)) != 0) {
    // Only the system's own user may give files away; it becomes the user's.
  }
  // Without the group its members would lose a file that they share.
  const bool has_group =
      status.st_gid == old.st_gid || fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
  const mode_t permissions = old.st_mode & kPermissions;
  // Not every disk knows permissions; on one that doesn't they are the same already.
  return has_group &&
         ((status.st_mode & kPermissions) == permissions || fchmod(file, permissions) == 0);
}

bool NewFile::Write(const std::string& bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t count = write(file_.Number(), bytes.data() + at, bytes.size() - at);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    at += static_cast<std::size_t>(count);
  }
  return fsync(file_.Number()) == 0;
}

bool NewFile::Take_Place() {
  in_place_ = renameat(folder_, name_.c_str(), folder_, place_.c_str()) == 0;
  return in_place_;
}

void Remove_Rests(int folder, const std::string& place) {
  const int again = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (again < 0) return;
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(fdopendir(again), closedir);
  if (entries == nullptr) {
    close(again);
    return;
  }
  while (const dirent* entry = readdir(entries.get())) {
    const char* name = entry->d_name;
    if (Is_Rest_Of(name, place) && Is_Forgotten(folder, name)) unlinkat(folder, name, 0);
  }
}

}  // namespace norvane
