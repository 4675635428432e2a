// Preloaded into a program, it writes down in the file RECORDED_WRITES what the program asks the
// disk for, in its order: what is made, written, flushed, renamed and removed.
//
//   create FILE NAME    write FILE HEX-DIGITS    cut FILE    sync FILE    sync-folder
//   rename NAME NAME    remove NAME

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

template <class Result, class... Arguments>
Result Real(const char* symbol, Arguments... arguments) {
  using Function = Result (*)(Arguments...);
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol))(arguments...);
}

void Write_Down(const std::string& line) {
  static const char* const path = std::getenv("RECORDED_WRITES");
  if (path == nullptr) return;
  static const int file =
      Real<int>("open", path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, mode_t{0600});
  const std::string whole = line + '\n';
  if (Real<ssize_t>("write", file, whole.data(), whole.size()) < 0) std::abort();
}

std::string Last_Part(std::string_view path) {
  return std::string(path.substr(path.rfind('/') + 1));
}

std::string Number(int file) { return std::to_string(file); }

bool Is(int file, mode_t kind) {
  struct stat status {};
  return fstat(file, &status) == 0 && (status.st_mode & S_IFMT) == kind;
}

int Opened(int file, const char* path, int flags) {
  if (file < 0) return file;
  if ((flags & O_CREAT) != 0) Write_Down("create " + Number(file) + " " + Last_Part(path));
  if ((flags & O_TRUNC) != 0) Write_Down("cut " + Number(file));
  return file;
}

mode_t Mode_Of(int flags, std::va_list arguments) {
  return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Opened(Real<int>("open", path, flags, mode), path, flags);
}

int openat(int folder, const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Opened(Real<int>("openat", folder, path, flags, mode), path, flags);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  const ssize_t count = Real<ssize_t>("write", file, bytes, size);
  if (count <= 0 || !Is(file, S_IFREG)) return count;
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string line = "write " + Number(file) + " ";
  for (const char byte :
       std::string_view(static_cast<const char*>(bytes), static_cast<std::size_t>(count))) {
    line += {kDigits[(byte >> 4) & 15], kDigits[byte & 15]};
  }
  Write_Down(line);
  return count;
}

int fsync(int file) {
  const int result = Real<int>("fsync", file);
  if (result == 0) Write_Down(Is(file, S_IFDIR) ? "sync-folder" : "sync " + Number(file));
  return result;
}

int rename(const char* from, const char* to) {
  const int result = Real<int>("rename", from, to);
  if (result == 0) Write_Down("rename " + Last_Part(from) + " " + Last_Part(to));
  return result;
}

int renameat(int from_folder, const char* from, int to_folder, const char* to) {
  const int result = Real<int>("renameat", from_folder, from, to_folder, to);
  if (result == 0) Write_Down("rename " + Last_Part(from) + " " + Last_Part(to));
  return result;
}

int unlinkat(int folder, const char* path, int flags) {
  const int result = Real<int>("unlinkat", folder, path, flags);
  if (result == 0) Write_Down("remove " + Last_Part(path));
  return result;
}

}  // extern "C"
