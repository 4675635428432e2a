#pragma once

#include <optional>
#include <string>

namespace norvane {

struct Module1;

/// Runs a procedure that no event reaches, or a function alone, by a line such as "Inch 21 0".
/// Returns its printed result, where it has one. Throws `ScriptError` for an unknown procedure or
/// arguments that don't fit.
std::optional<std::string> Call(Module1& module1, const std::string& line);

}  // namespace norvane
