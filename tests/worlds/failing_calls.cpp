// Preloaded into a program, it makes one call of the system fail: FAILING_CALL is "name:n", and the
// n-th call of that name fails as such calls do. The file FAILING_MARK is made then; a run without
// it had no n-th call. With FAILING_LATER only the calls between Let_Calls_Fail(true) and (false)
// count. "new" and "thread" are the memory and the threads that the program itself asks for, or the
// C++ library for it.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

extern "C" void* __libc_malloc(std::size_t size);

namespace {

char wanted_call[32];
long wanted_number = 0;
char mark[4096];
std::atomic<long> calls{0};
std::atomic<bool> ready{false};

struct Code {
  std::uintptr_t begin, end;
};
Code own_code[2];  // of the program, and of the C++ library
int own_codes = 0;

int Note_Own_Code(dl_phdr_info* info, std::size_t, void*) {
  const bool is_program = info->dlpi_name[0] == '\0' && own_codes == 0;
  if (!is_program && std::strstr(info->dlpi_name, "libstdc++") == nullptr) return 0;
  for (int i = 0; i < info->dlpi_phnum; ++i) {
    const auto& part = info->dlpi_phdr[i];
    if (part.p_type != PT_LOAD || (part.p_flags & PF_X) == 0) continue;
    const std::uintptr_t begin = info->dlpi_addr + part.p_vaddr;
    own_code[own_codes++] = {begin, begin + part.p_memsz};
    break;
  }
  return own_codes == 2 ? 1 : 0;
}

bool Is_Own(const void* caller) {
  const auto place = reinterpret_cast<std::uintptr_t>(caller);
  for (const Code& code : own_code) {
    if (place >= code.begin && place < code.end) return true;
  }
  return false;
}

[[gnu::constructor]] void Read_Wish() {
  const char* call = std::getenv("FAILING_CALL");
  const char* file = std::getenv("FAILING_MARK");
  if (call == nullptr || file == nullptr || std::strlen(file) >= sizeof mark) return;
  if (std::sscanf(call, "%31[a-z_]:%ld", wanted_call, &wanted_number) != 2) std::abort();
  std::strcpy(mark, file);
  // What the program starts goes its own way.
  unsetenv("FAILING_CALL");
  dl_iterate_phdr(Note_Own_Code, nullptr);
  ready = std::getenv("FAILING_LATER") == nullptr;
}

/// Whether this call is the one that fails; the error is set then.
bool Fails(const char* call, int error) {
  if (!ready || std::strcmp(call, wanted_call) != 0 || ++calls != wanted_number) return false;
  syscall(SYS_close, syscall(SYS_openat, AT_FDCWD, mark, O_CREAT | O_WRONLY, 0600));
  errno = error;
  return true;
}

/// Of others, such as pipes and the connection to a display, nothing fails.
bool Is_File(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

template <class Result, class... Arguments>
Result Real(const char* symbol, Arguments... arguments) {
  using Function = Result (*)(Arguments...);
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol))(arguments...);
}

mode_t Mode_Of(int flags, std::va_list arguments) {
  return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

int Open(const char* symbol, const char* path, int flags, mode_t mode) {
  return Fails("open", EMFILE) ? -1 : Real<int>(symbol, path, flags, mode);
}

int Open_At(const char* symbol, int folder, const char* path, int flags, mode_t mode) {
  return Fails("open", EMFILE) ? -1 : Real<int>(symbol, folder, path, flags, mode);
}

}  // namespace

void* operator new(std::size_t size) {
  if (Is_Own(__builtin_return_address(0)) && Fails("new", ENOMEM)) throw std::bad_alloc();
  if (void* memory = __libc_malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

extern "C" {

void Let_Calls_Fail(bool let) { ready = let && wanted_number > 0; }

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Open("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Open("open64", path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Open_At("openat", folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = Mode_Of(flags, rest);
  va_end(rest);
  return Open_At("openat64", folder, path, flags, mode);
}

FILE* fopen(const char* path, const char* mode) {
  return Fails("open", EMFILE) ? nullptr : Real<FILE*>("fopen", path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
  return Fails("open", EMFILE) ? nullptr : Real<FILE*>("fopen64", path, mode);
}

DIR* opendir(const char* path) {
  return Fails("open", EMFILE) ? nullptr : Real<DIR*>("opendir", path);
}

ssize_t read(int file, void* bytes, std::size_t size) {
  const bool fails = Is_File(file) && Fails("read", EIO);
  return fails ? -1 : Real<ssize_t>("read", file, bytes, size);
}

std::size_t fread(void* bytes, std::size_t size, std::size_t count, FILE* file) {
  const bool fails = Is_File(fileno(file)) && Fails("read", EIO);
  return fails ? 0 : Real<std::size_t>("fread", bytes, size, count, file);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  const bool fails = Is_File(file) && Fails("write", ENOSPC);
  return fails ? -1 : Real<ssize_t>("write", file, bytes, size);
}

ssize_t writev(int file, const iovec* pieces, int count) {
  const bool fails = Is_File(file) && Fails("write", ENOSPC);
  return fails ? -1 : Real<ssize_t>("writev", file, pieces, count);
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, FILE* file) {
  const bool fails = Is_File(fileno(file)) && Fails("write", ENOSPC);
  return fails ? 0 : Real<std::size_t>("fwrite", bytes, size, count, file);
}

int fsync(int file) { return Fails("fsync", EIO) ? -1 : Real<int>("fsync", file); }

int fdatasync(int file) { return Fails("fsync", EIO) ? -1 : Real<int>("fdatasync", file); }

int rename(const char* from, const char* to) {
  return Fails("rename", EACCES) ? -1 : Real<int>("rename", from, to);
}

int renameat(int from_folder, const char* from, int to_folder, const char* to) {
  const bool fails = Fails("rename", EACCES);
  return fails ? -1 : Real<int>("renameat", from_folder, from, to_folder, to);
}

int flock(int file, int how) { return Fails("flock", ENOLCK) ? -1 : Real<int>("flock", file, how); }

int mkdir(const char* path, mode_t mode) {
  return Fails("mkdir", EACCES) ? -1 : Real<int>("mkdir", path, mode);
}

pid_t fork() { return Fails("fork", EAGAIN) ? -1 : Real<pid_t>("fork"); }

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                   void* argument) {
  const bool is_own = Is_Own(__builtin_return_address(0));
  if (Fails("pthread_create", EAGAIN) || (is_own && Fails("thread", EAGAIN))) return EAGAIN;
  return Real<int>("pthread_create", thread, attributes, start, argument);
}

void* malloc(std::size_t size) { return Fails("malloc", ENOMEM) ? nullptr : __libc_malloc(size); }

}  // extern "C"
