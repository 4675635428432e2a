#pragma once

#include <filesystem>

namespace norvane {

/// A function of a plug-in, a shared library that lies beside the program; null when there is no
/// such library, it can't be loaded, or it has no function of this name. It is never unloaded:
/// libraries that it brings along keep threads and static objects of their own.
void* Function_Of_Plug_In(const std::filesystem::path& library, const char* function);

}  // namespace norvane
