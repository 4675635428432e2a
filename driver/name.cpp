#include "driver/name.h"

#include <charconv>

namespace norvane {
namespace {

// Not the standard library's classes, which ask the locale of the process.
bool Is_Letter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::vector<int> Parse_Numbers(const std::string& list) {
  std::vector<int> numbers;
  std::size_t begin = 0;
  while (true) {
    const std::size_t comma = list.find(',', begin);
    numbers.push_back(Parse_Number(list.substr(begin, comma - begin)));
    if (comma == std::string::npos) return numbers;
    begin = comma + 1;
  }
}

}  // namespace

int Parse_Number(const std::string& text) {
  int number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size()) throw ScriptError();
  return number;
}

std::vector<NamePart> Parse_Name(const std::string& name) {
  std::vector<NamePart> parts;
  std::size_t at = 0;
  while (true) {
    NamePart part;
    while (at < name.size() && Is_Letter(name[at])) part.word += name[at++];
    if (part.word.empty()) throw ScriptError();
    if (at < name.size() && name[at] == '(') {
      const std::size_t close = name.find(')', at);
      if (close == std::string::npos) throw ScriptError();
      part.numbers = Parse_Numbers(name.substr(at + 1, close - at - 1));
      at = close + 1;
    }
    parts.push_back(part);
    if (at == name.size()) return parts;
    if (name[at++] != '.') throw ScriptError();
  }
}

}  // namespace norvane
