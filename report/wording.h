#pragma once

#include <functional>
#include <string>

#include "frame/text_id.h"

namespace norvane {

/// A text of the current language, UTF-8.
using Wording = std::function<std::string(TextId)>;

}  // namespace norvane
