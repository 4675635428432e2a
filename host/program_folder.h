#pragma once

#include <filesystem>

namespace norvane {

/// The folder that the running program lies in; empty where the system doesn't tell.
std::filesystem::path Program_Folder();

}  // namespace norvane
