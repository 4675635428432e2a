#pragma once

#include <string>

#include "frame/shared_state.h"
#include "screen/model/field_model.h"

namespace norvane {

/// Tabs, line ends and backslashes as `\t`, `\r`, `\n`, `\\`, and back.
std::string Escape(const std::string& text);
std::string Unescape(const std::string& text);

/// Bytes of the program as the user would see them, escaped.
std::string Shown(const std::string& bytes, int charset);

}  // namespace norvane
