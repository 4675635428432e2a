#pragma once

#include <string>

#include "frame/text_id.h"

namespace norvane {

/// Stands for the text that a language has under the number.
inline std::string Number_Of(TextId id) { return "t" + std::to_string(static_cast<int>(id)); }

}  // namespace norvane
