#include <fstream>
#include <iterator>
#include <system_error>

#include "host/plain_file.h"

namespace norvane {

std::optional<std::string> Bytes_Of(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || size > kLargestFile) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace norvane
