#pragma once

#include "platform/spreadsheet.h"

namespace norvane {

/// A spreadsheet program that can't be reached at all, though it is installed: another one may do.
class SpreadsheetUnreachable : public SpreadsheetFailure {};

}  // namespace norvane
