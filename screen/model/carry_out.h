#pragma once

#include <optional>
#include <string>

#include "screen/model/user_event.h"

namespace norvane {

class Desk;

/// Why a user could not do what the event tells, in free words; nothing when he could.
std::optional<std::string> Reason_To_Refuse(const Desk& desk, const UserEvent& event);

/// Does it. The event isn't one to refuse.
void Carry_Out(Desk& desk, const UserEvent& event);

}  // namespace norvane
