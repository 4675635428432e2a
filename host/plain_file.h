#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace norvane {

/// Larger files aren't read: no text of the program's comes near.
inline constexpr std::uintmax_t kLargestFile = std::uintmax_t{64} << 20;

/// The bytes of a plain file, as many as it had when it was opened. Nothing for a file that is
/// larger than `kLargestFile` or can't be opened, and for anything else of that name, which could
/// block or never end. Never waits.
/// @param path of the file
std::optional<std::string> Bytes_Of(const std::filesystem::path& path);

}  // namespace norvane
