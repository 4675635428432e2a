#include "data/private_profile.h"

#include <algorithm>

#include "data/text.h"

namespace norvane {
namespace {

std::string_view Bare(std::string_view text) { return Trim(text, kBlanks); }

bool Same_Name(std::string_view a, std::string_view b) { return Lower(a) == Lower(b); }

struct Line {
  std::size_t begin;
  std::size_t end;   // of the text
  std::size_t next;  // behind the line end
};

Line Line_At(std::string_view file, std::size_t begin) {
  const std::size_t end = std::min(file.find_first_of(kLineEnds, begin), file.size());
  std::size_t next = std::min(end + 1, file.size());
  if (end + 1 < file.size() && file[end] == '\r' && file[end + 1] == '\n') ++next;
  return {begin, end, next};
}

std::optional<std::string_view> Section_Name(std::string_view line) {
  const std::string_view text = Bare(line);
  if (text.empty() || text.front() != '[') return std::nullopt;
  const std::size_t close = text.find(']');
  if (close == std::string_view::npos) return std::nullopt;
  return Bare(text.substr(1, close - 1));
}

/// Where a key stands, or where it would be put.
struct Found {
  bool section = false;
  std::optional<Line> key;
  std::size_t section_end = 0;  // behind its last line that isn't empty
};

Found Find(std::string_view file, std::string_view section, std::string_view key) {
  Found found;
  for (std::size_t at = 0; at < file.size();) {
    const Line line = Line_At(file, at);
    at = line.next;
    const std::string_view text = file.substr(line.begin, line.end - line.begin);
    if (const auto name = Section_Name(text)) {
      if (found.section) break;
      if (!Same_Name(*name, section)) continue;
      found.section = true;
      found.section_end = line.next;
      continue;
    }
    if (!found.section || Bare(text).empty()) continue;
    found.section_end = line.next;
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos && Same_Name(Bare(text.substr(0, equals)), key)) {
      found.key = line;
      break;
    }
  }
  return found;
}

std::string Line_End_Of(std::string_view file) {
  const std::size_t end = file.find_first_of(kLineEnds);
  if (end == std::string_view::npos) return "\r\n";
  return std::string(file.substr(end, Line_At(file, 0).next - end));
}

}  // namespace

std::optional<std::string> Get_Private_Profile_String(std::string_view file,
                                                      std::string_view section,
                                                      std::string_view key) {
  const Found found = Find(file, section, key);
  if (!found.key) return std::nullopt;
  const std::string_view text = file.substr(found.key->begin, found.key->end - found.key->begin);
  return std::string(Bare(text.substr(text.find('=') + 1)));
}

std::vector<std::string> Private_Profile_Keys(std::string_view file, std::string_view section) {
  std::vector<std::string> keys;
  bool in_section = false;
  for (std::size_t at = 0; at < file.size();) {
    const Line line = Line_At(file, at);
    at = line.next;
    const std::string_view text = file.substr(line.begin, line.end - line.begin);
    if (const auto name = Section_Name(text)) {
      if (in_section) break;
      in_section = Same_Name(*name, section);
      continue;
    }
    const std::size_t equals = text.find('=');
    if (in_section && equals != text.npos) keys.emplace_back(Bare(text.substr(0, equals)));
  }
  return keys;
}

std::string Write_Private_Profile_String(std::string_view file, std::string_view section,
                                         std::string_view key, std::string_view value) {
  const Found found = Find(file, section, key);
  std::string result(file);
  if (found.key) {
    const std::size_t equals = file.find('=', found.key->begin);
    return result.replace(equals + 1, found.key->end - equals - 1, value);
  }
  const std::string line_end = Line_End_Of(file);
  const std::size_t place = found.section ? found.section_end : file.size();
  std::string addition;
  if (place > 0 && kLineEnds.find(file[place - 1]) == std::string_view::npos) addition = line_end;
  if (!found.section) addition.append("[").append(section).append("]").append(line_end);
  addition.append(key).append("=").append(value).append(line_end);
  return result.insert(place, addition);
}

}  // namespace norvane
