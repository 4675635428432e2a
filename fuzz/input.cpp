#include "input.h"

#include <algorithm>

namespace norvane {

std::uint8_t Input::Byte() {
  if (bytes_.empty()) return 0;
  const auto byte = static_cast<std::uint8_t>(bytes_.front());
  bytes_.remove_prefix(1);
  return byte;
}

std::string Input::Bytes(std::size_t count) {
  const std::string taken(bytes_.substr(0, count));
  bytes_.remove_prefix(taken.size());
  return taken;
}

std::vector<std::string> Input::Parts(char mark) {
  std::vector<std::string> parts;
  while (true) {
    const std::size_t end = std::min(bytes_.find(mark), bytes_.size());
    parts.emplace_back(bytes_.substr(0, end));
    bytes_.remove_prefix(std::min(end + 1, bytes_.size()));
    if (bytes_.empty()) return parts;
  }
}

}  // namespace norvane
