#include "host/plain_file.h"

#include <windows.h>

#include <chrono>

#include "host/windows/handle.h"
#include "host/windows/wide.h"

namespace norvane {
namespace {

/// For a file that is just being replaced.
constexpr std::chrono::milliseconds kPatience{200};
constexpr DWORD kForAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// An invalid handle where there is no such file.
HANDLE Open_For_Reading(const std::wstring& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return INVALID_HANDLE_VALUE;
  }
  HANDLE opened = INVALID_HANDLE_VALUE;
  Try_While_Busy(
      [&] {
        opened = CreateFileW(file.c_str(), GENERIC_READ, kForAll, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
        return opened != INVALID_HANDLE_VALUE;
      },
      kPatience);
  return opened;
}

}  // namespace

std::optional<std::string> Bytes_Of(const std::filesystem::path& path) {
  const Handle file(Open_For_Reading(Long_Path(path)));
  LARGE_INTEGER size;
  if (!file.Is_Open() || GetFileType(file.Raw()) != FILE_TYPE_DISK ||
      GetFileSizeEx(file.Raw(), &size) == 0 ||
      static_cast<std::uintmax_t>(size.QuadPart) > kLargestFile) {
    return std::nullopt;
  }
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD count = 0;
  if (ReadFile(file.Raw(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == 0) {
    return std::nullopt;
  }
  bytes.resize(count);
  return bytes;
}

}  // namespace norvane
