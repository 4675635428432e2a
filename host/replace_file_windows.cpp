#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "host/replace_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

// Renaming over a file is atomic here too; taking turns isn't attempted.

/// The old bytes, none for a missing file; nothing for one that is there and can't be replaced.
std::optional<std::string> Old_Bytes(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return std::string();
  if (!fs::is_regular_file(status)) return std::nullopt;
  if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

bool Write_Flushed(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes << std::flush;
  return file.good();
}

}  // namespace

void Replace_File(const fs::path& name,
                  const std::function<std::string(const std::string&)>& edit) {
  std::error_code error;
  // A link stays one: what it leads to is replaced.
  const fs::path path = fs::is_symlink(name, error) ? fs::weakly_canonical(name, error) : name;
  const auto old_bytes = Old_Bytes(path);
  if (!old_bytes) return;
  const std::string new_bytes = edit(*old_bytes);
  if (new_bytes == *old_bytes && fs::exists(path, error)) return;
  fs::path beside = path;
  beside += ".new";
  if (Write_Flushed(beside, new_bytes)) {
    const fs::perms perms = fs::status(path, error).permissions();
    if (perms != fs::perms::unknown && perms != fs::perms::none) {
      fs::permissions(beside, perms, error);
    }
    fs::rename(beside, path, error);
    if (!error) return;
  }
  fs::remove(beside, error);
}

}  // namespace norvane
