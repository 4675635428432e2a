#pragma once

#include "desktop/table_pages.h"
#include "study/schedule.h"

namespace norvane {

class Desktop;
class ScheduleModel;

/// A schedule as a table for paper: its columns that have a text somewhere, and the sums under
/// theirs.
/// @param title above it
/// @param sums of all rows
TableReport Report_Of(const Desktop& desktop, const QString& title, const ScheduleModel& schedule,
                      const ScheduleSums& sums);

}  // namespace norvane
