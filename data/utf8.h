#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// The bytes without the marks of their byte order that a text file may begin with.
/// @param bytes of a file; they have to outlive the result
std::string_view Without_Byte_Order_Mark(std::string_view bytes);

/// Whether the bytes are well-formed UTF-8 (RFC 3629), which has neither surrogates nor overlong
/// forms.
/// @param bytes of any text
bool Is_Utf8(std::string_view bytes);

/// The text with U+FFFD for every byte that belongs to no letter.
/// @param bytes of any text
std::string Mended_Utf8(std::string_view bytes);

}  // namespace norvane
