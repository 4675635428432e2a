#include "host/windows/wide.h"

#include <windows.h>

namespace norvane {
namespace {

constexpr std::wstring_view kNoLimit = LR"(\\?\)";
constexpr std::wstring_view kNetwork = LR"(\\)";
constexpr std::wstring_view kNetworkNoLimit = LR"(\\?\UNC\)";

/// With native slashes, without "." and "..", behind the current folder where it isn't absolute.
std::wstring Full_Path(const std::wstring& path) {
  std::wstring full(MAX_PATH, L'\0');
  while (true) {
    const DWORD size = static_cast<DWORD>(full.size());
    const DWORD needed = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
    full.resize(needed);
    if (needed < size) return full;
  }
}

}  // namespace

std::wstring Wide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), size,
                                                                nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), static_cast<int>(utf8.size()),
                      nullptr, nullptr);
  return utf8;
}

std::wstring Long_Path(const std::filesystem::path& path) {
  const std::wstring full = Full_Path(path.native());
  if (full.starts_with(kNoLimit)) return full;
  if (!full.starts_with(kNetwork)) return std::wstring(kNoLimit) + full;
  return std::wstring(kNetworkNoLimit) + full.substr(kNetwork.size());
}

}  // namespace norvane
