// Loaded before the C library: whoever makes a file beside the finished one is asked to end before
// it has learnt that the file is there.
#include <dlfcn.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

extern "C" std::FILE* fopen(const char* name, const char* mode) {
  using Open = std::FILE* (*)(const char*, const char*);
  static const auto open = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "fopen"));
  std::FILE* const file = open(name, mode);
  if (file != nullptr && std::strstr(name, ".part") != nullptr) kill(getpid(), SIGTERM);
  return file;
}
