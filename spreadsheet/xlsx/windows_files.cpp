#include <cstdio>
#include <filesystem>
#include <random>

#include "host/windows/wide.h"

// The library opens files by names in the system's code page, which lacks the letters of many a
// user's folder. The linker leads its calls here, where names are UTF-8 and of any length.

extern "C" {

FILE* __wrap_fopen(const char* name, const char* mode) {
  return _wfopen(norvane::Long_Path(norvane::Wide(name)).c_str(), norvane::Wide(mode).c_str());
}

/// A temporary file that is gone when it is closed, always in the user's folder for such files.
FILE* __wrap_tmpfileplus(const char*, const char*, char**, int) {
  std::random_device device;
  const std::string name = "norvane-" + std::to_string(device()) + std::to_string(device());
  std::error_code error;
  const auto folder = std::filesystem::temp_directory_path(error);
  return error ? nullptr : _wfopen(norvane::Long_Path(folder / name).c_str(), L"w+bxTD");
}
}
