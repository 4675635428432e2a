#pragma once

#include "report/comparison_table.h"

namespace norvane {

struct Module1;

/// Hands a comparison to the spreadsheet program, in the workbook that the export of the totals
/// fills. A step that fails is passed over; without the workbook the user is told.
/// @param module1 the shared state
/// @param table a comparison
void Export_Comparison(Module1& module1, const ComparisonTable& table);

}  // namespace norvane
