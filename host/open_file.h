#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace norvane {

/// A file or folder that the system has opened for this process.
class OpenFile {
 public:
  /// Takes over what `open` and its kind return.
  explicit OpenFile(int number) : number_(number) {}
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool Is_Open() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

struct PlainFile {
  struct stat status;
  std::string bytes;
};

/// Reads a plain file as `Bytes_Of` does. `how` are flags of `open`; with `O_NOFOLLOW` a link isn't
/// a plain file. Where nothing is there, `errno` is `ENOENT`.
std::optional<PlainFile> Read_Plain_File(int folder, const char* name, int how);

}  // namespace norvane
