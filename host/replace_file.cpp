#include "host/replace_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "host/new_file.h"
#include "host/open_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

using Edit = std::function<std::string(const std::string&)>;

/// For one's turn. Another of the program's processes has its own for the moment of a writing;
/// whoever else holds the lock may do so for ever.
constexpr std::chrono::milliseconds kPatience{200};
constexpr int kAttempts = 20;

/// What stands at a place; nothing read when the place is free.
struct Old {
  bool is_there = false;
  PlainFile file{};
};

/// What a link says and whose it is, both of the same link: another one may take its place between
/// two calls.
struct Link {
  fs::path target;
  uid_t owner = 0;
};

/// Nothing when the path isn't a link's.
std::optional<Link> Read_Link(const fs::path& name) {
  const OpenFile link(open(name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
  struct stat status {};
  if (!link.Is_Open() || fstat(link.Number(), &status) != 0 || !S_ISLNK(status.st_mode)) {
    return std::nullopt;
  }
  std::string target(PATH_MAX, '\0');
  const ssize_t length = readlinkat(link.Number(), "", target.data(), target.size());
  if (length < 0) return std::nullopt;
  target.resize(static_cast<std::size_t>(length));
  return Link{target, status.st_uid};
}

/// Where a link leads to, and any other path as it is. Nothing for a link that somebody else has
/// put there, the folder's owner too: it may lead to a file that the user can write to and its
/// maker can't.
std::optional<fs::path> Followed(const fs::path& name) {
  const auto link = Read_Link(name);
  if (!link) return name;
  if (link->owner != geteuid() && link->owner != 0) return std::nullopt;
  const fs::path target = name.parent_path() / link->target;
  std::error_code error;
  fs::path place = fs::canonical(target, error);
  return error ? target : place;  // nothing is there yet
}

int Open_Folder(const fs::path& folder) {
  const int readable = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // One that lets nobody look into it may take files all the same.
  return readable >= 0 ? readable : open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

/// The folder itself is the lock; the system takes it back from a process that dies. Where the
/// folder can't be locked, or somebody doesn't let go of it, the work is done without.
void Wait_For_Turn(int folder) {
  const auto end = steady_clock::now() + kPatience;
  while (flock(folder, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR) &&
         steady_clock::now() < end) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

/// Nothing when what stands there can't be replaced.
std::optional<Old> Look_At(int folder, const std::string& place) {
  auto file = Read_Plain_File(folder, place.c_str(), O_RDWR | O_NOFOLLOW);
  if (!file) return errno == ENOENT ? std::optional(Old{}) : std::nullopt;
  // To the system's own user every file can be written.
  if ((file->status.st_mode & S_IWUSR) == 0) return std::nullopt;
  return Old{true, std::move(*file)};
}

bool Is_Unchanged(int folder, const std::string& place, const Old& old) {
  struct stat now {};
  if (fstatat(folder, place.c_str(), &now, AT_SYMLINK_NOFOLLOW) != 0) return !old.is_there;
  const struct stat& then = old.file.status;
  return old.is_there && now.st_dev == then.st_dev && now.st_ino == then.st_ino &&
         now.st_size == then.st_size && now.st_mtim.tv_sec == then.st_mtim.tv_sec &&
         now.st_mtim.tv_nsec == then.st_mtim.tv_nsec;
}

/// Whether that was all that could be done; not, when somebody was faster.
bool Replace_Unless_Changed(int folder, const std::string& place, const Edit& edit) {
  const auto old = Look_At(folder, place);
  if (!old) return true;
  const std::string new_bytes = edit(old->file.bytes);
  if (old->is_there && new_bytes == old->file.bytes) return true;
  NewFile new_file(folder, place, !old->is_there);
  if (!new_file.Is_Open() || (old->is_there && !new_file.Take_Over(old->file.status)) ||
      !new_file.Write(new_bytes)) {
    return true;
  }
  if (!Is_Unchanged(folder, place, *old)) return false;
  if (new_file.Take_Place()) {
    fsync(folder);
    Remove_Rests(folder, place);
  }
  return true;
}

}  // namespace

void Replace_File(const fs::path& name, const Edit& edit) {
  const auto path = Followed(name);
  if (!path) return;
  const OpenFile folder(Open_Folder(path->parent_path()));
  if (!folder.Is_Open()) return;
  Wait_For_Turn(folder.Number());
  const std::string place = path->filename().string();
  int attempts = kAttempts;
  while (attempts-- > 0 && !Replace_Unless_Changed(folder.Number(), place, edit)) {
  }
}

}  // namespace norvane
