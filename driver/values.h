#pragma once

#include <optional>
#include <string>

#include "driver/name.h"
#include "frame/shared_state.h"

namespace norvane {

/// The printed value of a name: an attribute of a field or form, or a part of the state. Naming a
/// form that isn't loaded loads it. Throws `ScriptError` for a name that doesn't exist.
std::string Value_Of(Module1& module1, const std::vector<NamePart>& parts);

/// What a field shows as text: its text, its caption or the chosen item; nothing for other kinds.
std::optional<std::string> Text_Of(const Module1& module1, const Field& field);

/// The state of the program that a name stands for, or nothing when it stands for none.
std::optional<std::string> State_Value(Module1& module1, const std::vector<NamePart>& parts);

std::string Printed(bool flag);
/// The number with a point, "inf" or "-inf" where it is infinite.
std::string Printed(double number);
std::string Printed(float single);

}  // namespace norvane
