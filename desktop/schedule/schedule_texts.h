#pragma once

#include <QString>

#include "study/object.h"
#include "study/reason.h"
#include "study/schedule.h"

namespace norvane {

class Desktop;

/// What stands above a column of an object, its unit in a line of its own.
QString Heading_Of(const Desktop& desktop, const Column& column);

/// The same for a column of the results.
/// @param place in `kHeatLossColumns`
QString Heading_Of_Result(const Desktop& desktop, std::size_t place);

/// What stands above the remarks on rows.
QString Remark_Heading(const Desktop& desktop);

/// The words for a kind of object.
QString Kind_Word(const Desktop& desktop, std::int16_t kind);

/// Why a row has no result, or no saving; empty where it has both.
QString Remark_On(const Desktop& desktop, const ScheduleRow& row);

/// The sums of all rows in a line, their numbers in the user's decimal sign.
QString Words_For(const Desktop& desktop, const ScheduleSums& sums);

}  // namespace norvane
