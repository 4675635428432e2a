#pragma once

#include <string>

#include "frame/shared_state.h"

namespace norvane {

/// What holds whenever the program waits for the user: the states of the main screen's fields by
/// mode and kind, their limits, results that are numbers or nothing, and the list of calculations
/// with its spare element.
void Require_Rules(Module1& module1);

/// All that the forms and the shared state show, in one text that differs when anything does.
std::string Digest(Module1& module1);

}  // namespace norvane
