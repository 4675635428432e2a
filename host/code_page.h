#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Texts of the program are bytes; the Windows character set of a font (0 for Western, 204 for
/// Cyrillic ...) tells which letters they are. Character sets that no page belongs to read as 0.

/// The text as UTF-8; a byte that the page lacks becomes U+FFFD.
/// @param bytes a text of the program
/// @param charset Windows character set
std::string To_Utf8(std::string_view bytes, int charset);

/// The bytes of a UTF-8 text; a letter that the page lacks becomes "?".
/// @param text in UTF-8; bytes that are none become "?"
/// @param charset Windows character set
std::string From_Utf8(std::string_view text, int charset);

}  // namespace norvane
