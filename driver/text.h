#pragma once

#include <string>

#include "frame/shared_state.h"
#include "screen/model/field_model.h"

namespace norvane {

/// Tabs, line ends and backslashes as `\t`, `\r`, `\n`, `\\`, and back.
std::string Escape(const std::string& text);
std::string Unescape(const std::string& text);

/// The character set of a language's slot; 0 where it has none or no number.
int Charset_Of_Slot(const Module1& module1, int slot);

/// The character set that a field's text is read by.
int Charset_Of(const Module1& module1, const Field& field);

/// Bytes of the program as the user would see them, escaped.
std::string Shown(const std::string& bytes, int charset);

}  // namespace norvane
