#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// What separates words within a line, and what ends a line.
inline constexpr std::string_view kBlanks = " \t";
inline constexpr std::string_view kLineEnds = "\r\n";

/// Whether it is one of "0" to "9", whatever the locale of the process.
/// @param c any byte
constexpr bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

/// `text` with its ASCII letters in lower case.
/// @param text any bytes
std::string Lower(std::string_view text);

/// `text` without the `blanks` at its ends, which are spaces unless said otherwise.
/// @param text any bytes; they have to outlive the result
/// @param blanks the letters that are taken away
std::string_view Trim(std::string_view text, std::string_view blanks = " ");

/// The parts of a text between separators; an empty text has none.
/// @param text any bytes
/// @param separator between two parts
std::vector<std::string> Split(std::string_view text, char separator);

}  // namespace norvane
