#include "host/program_folder.h"

#include <array>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

namespace norvane {

std::filesystem::path Program_Folder() {
#ifdef _WIN32
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return std::filesystem::path(std::wstring(path.data(), length)).parent_path();
#else
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
#endif
}

}  // namespace norvane
