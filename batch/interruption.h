#pragma once

#include <filesystem>

namespace norvane {

/// From here on the signals that ask the program to end wait for `Clear_Up_At_Interruption`, so
/// that none comes between the making of a file and the name that would remove it. Called once,
/// before other threads begin.
void Hold_Interruptions();

/// From here on a signal that asks the program to end, a held one included, removes the file
/// `unfinished` first, when it has a name. Called once, after `Hold_Interruptions`.
void Clear_Up_At_Interruption(const std::filesystem::path& unfinished);

}  // namespace norvane
