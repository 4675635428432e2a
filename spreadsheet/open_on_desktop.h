#pragma once

#include <filesystem>

namespace norvane {

/// Opens a file with what the desktop opens such files with, and returns at once. Nothing happens
/// where there is no desktop.
void Open_On_Desktop(const std::filesystem::path& file);

}  // namespace norvane
