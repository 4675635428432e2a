#pragma once

#include "schedule/schedule_table.h"

namespace norvane {

class Desktop;

/// What the main screen shows at present, as a row of a schedule: with the fields of the mode that
/// it is in, and the chosen product as the name.
/// @param desktop whose program it is
/// @param table that the row is for
ScheduleLine Present_Line(Desktop& desktop, const ScheduleTable& table);

}  // namespace norvane
