#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace norvane {

/// Between UTF-8 and the system's UTF-16. What is broken in one comes out as U+FFFD in the other.
std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

/// A path that the system takes at any length, with the system's own slashes: absolute, behind the
/// prefix that switches the limit of 260 letters off.
std::wstring Long_Path(const std::filesystem::path& path);

}  // namespace norvane
