#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>
#endif

#include <filesystem>

namespace norvane {

/// While it lives, the user's folder for temporary files is another one.
class UserTemporaryFolder {
 public:
  explicit UserTemporaryFolder(const std::filesystem::path& folder)
      : before_(std::filesystem::temp_directory_path()) {
    Set(folder);
  }
  ~UserTemporaryFolder() { Set(before_); }
  UserTemporaryFolder(const UserTemporaryFolder&) = delete;
  UserTemporaryFolder& operator=(const UserTemporaryFolder&) = delete;

 private:
  static void Set(const std::filesystem::path& folder) {
#ifdef _WIN32
    SetEnvironmentVariableW(L"TMP", folder.c_str());
#else
    setenv("TMPDIR", folder.c_str(), 1);
#endif
  }

  std::filesystem::path before_;
};

}  // namespace norvane
