#pragma once

#include <string>

#include "screen/choices.h"

namespace norvane {

class FormView;

/// Gives an input field of the main screen a number that it can be given, by the ways of a user: as
/// a paste, or by as many clicks on the spin pair as it takes where the field is locked.
/// @param text as the field reads it
void Enter(FormView& view, Warmt& warmt, const InputRow& row, const std::string& text);

}  // namespace norvane
