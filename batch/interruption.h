#pragma once

#include <filesystem>

namespace norvane {

/// From here on a signal that asks the program to end removes the file `unfinished` first, when it
/// has a name. Called once, before other threads begin.
void Clear_Up_At_Interruption(const std::filesystem::path& unfinished);

}  // namespace norvane
