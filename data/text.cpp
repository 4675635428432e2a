#include "data/text.h"

namespace norvane {

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string_view Trim(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  std::size_t begin = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, begin)) {
    parts.emplace_back(text.substr(begin, at - begin));
    begin = at + 1;
  }
  parts.emplace_back(text.substr(begin));
  return parts;
}

}  // namespace norvane
