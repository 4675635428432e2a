#include "unreadable_file.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#endif

#include <system_error>

namespace norvane {

#ifdef _WIN32

UnreadableFile::UnreadableFile(const std::filesystem::path& path)
    : handle_(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {
  if (handle_ == INVALID_HANDLE_VALUE) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
  }
}

UnreadableFile::~UnreadableFile() { CloseHandle(handle_); }

#else

UnreadableFile::UnreadableFile(const std::filesystem::path& path) {
  if (mkfifo(path.c_str(), 0600) != 0) throw std::system_error(errno, std::generic_category());
}

UnreadableFile::~UnreadableFile() = default;

#endif

}  // namespace norvane
