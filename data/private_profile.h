#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// Files of `[section]` headers and `key=value` lines. Names match without regard to the case of
/// their letters; the first section of a name counts, and the first key in it.

/// The value of a key without the blanks and tabs around it, or nothing when it isn't there.
/// @param file its bytes
/// @param section its name, without brackets
/// @param key its name
std::optional<std::string> Get_Private_Profile_String(std::string_view file,
                                                      std::string_view section,
                                                      std::string_view key);

/// The names of the keys of a section, in their order and as they are spelled.
/// @param file its bytes
/// @param section its name, without brackets
std::vector<std::string> Private_Profile_Keys(std::string_view file, std::string_view section);

/// The file with the key set. Every other byte stays. A key that is there keeps its spelling and
/// place; a new one goes behind the last line of its section that isn't empty, a new section to the
/// end. New lines end as the file's first line does, in CR LF when it has none.
/// @param file its bytes
/// @param section its name, without brackets
/// @param key its name
/// @param value any text without a line end
std::string Write_Private_Profile_String(std::string_view file, std::string_view section,
                                         std::string_view key, std::string_view value);

}  // namespace norvane
