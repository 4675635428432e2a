#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace norvane {

/// Replaces the bytes of a file by what `edit` makes of them, of none when it is missing. The new
/// bytes are written beside it, flushed to the disk and renamed over it, so a crash at any moment
/// leaves the old file or the new one. Editors of one folder take turns. Nothing happens, in
/// silence, when the file or the folder can't be written to or the turn doesn't come in seconds.
void Replace_File(const std::filesystem::path& path,
                  const std::function<std::string(const std::string&)>& edit);

}  // namespace norvane
