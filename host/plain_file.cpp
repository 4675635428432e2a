#include "host/plain_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "host/open_file.h"

namespace norvane {
namespace {

bool Is_Readable(const struct stat& status) {
  return S_ISREG(status.st_mode) && static_cast<std::uintmax_t>(status.st_size) <= kLargestFile;
}

/// The tables of the system are said to be empty, aren't, and may have no end.
bool Is_As_Empty_As_It_Says(int file, const struct stat& status) {
  char byte = 0;
  return status.st_size > 0 || read(file, &byte, 1) == 0;
}

/// At most the bytes that there were.
bool Read_Bytes(int file, std::string& bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t count = read(file, bytes.data() + at, bytes.size() - at);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) bytes.resize(at);
    at += static_cast<std::size_t>(count);
  }
  return true;
}

}  // namespace

OpenFile::~OpenFile() {
  if (Is_Open()) close(number_);
}

std::optional<PlainFile> Read_Plain_File(int folder, const char* name, int how) {
  PlainFile plain{};
  // To open anything else may have an effect of its own.
  const int follow = (how & O_NOFOLLOW) != 0 ? AT_SYMLINK_NOFOLLOW : 0;
  if (fstatat(folder, name, &plain.status, follow) != 0) return std::nullopt;
  errno = 0;
  if (!Is_Readable(plain.status)) return std::nullopt;
  const OpenFile file(openat(folder, name, how | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  // It may have been exchanged in between.
  if (!file.Is_Open() || fstat(file.Number(), &plain.status) != 0 || !Is_Readable(plain.status) ||
      !Is_As_Empty_As_It_Says(file.Number(), plain.status)) {
    return std::nullopt;
  }
  plain.bytes.resize(static_cast<std::size_t>(plain.status.st_size));
  if (!Read_Bytes(file.Number(), plain.bytes)) return std::nullopt;
  return plain;
}

std::optional<std::string> Bytes_Of(const std::filesystem::path& path) {
  auto plain = Read_Plain_File(AT_FDCWD, path.c_str(), O_RDONLY);
  if (!plain) return std::nullopt;
  return std::move(plain->bytes);
}

}  // namespace norvane
