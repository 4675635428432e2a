#pragma once

#include <optional>
#include <string>

#include "screen/model/user_event.h"

namespace norvane {

class Desk;

/// Why a user could not do what the event tells, in free words; nothing when he could.
/// @param desk with the forms as they lie
/// @param event what the user would do
std::optional<std::string> Reason_To_Refuse(const Desk& desk, const UserEvent& event);

/// Does it. The event isn't one to refuse.
/// @param desk with the forms as they lie
/// @param event what the user does
void Carry_Out(Desk& desk, const UserEvent& event);

}  // namespace norvane
