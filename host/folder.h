#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace norvane {

/// What a folder holds. Names are the system's own bytes, or UTF-8 where the system names files in
/// UTF-16.
struct FolderEntry {
  std::string name;
  bool is_folder = false;
};

/// In no order; empty when the folder can't be read.
std::vector<FolderEntry> Entries_Of(const std::filesystem::path& folder);

/// The path that such a name, or an argument of the program, stands for.
std::filesystem::path To_Path(const std::string& name);

/// The path of a name in a folder, whether it is there or not.
std::filesystem::path Path_In(const std::filesystem::path& folder, const std::string& name);

/// Whether a folder has an entry of exactly this spelling.
bool Has_Entry(const std::filesystem::path& folder, const std::string& name);

}  // namespace norvane
