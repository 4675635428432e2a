#pragma once

#include <string>

namespace norvane {

/// A change of a file that can be told from no change and from one that was made twice.
inline std::string Append_New(const std::string& bytes) { return bytes + "new"; }

}  // namespace norvane
