#pragma once

#include <QString>

#include "chance.h"

namespace norvane {

/// A letter that hardly any keyboard has.
QString Odd_Letter(Chance& chance);

/// What somebody may have in the clipboard.
QString Odd_Text(Chance& chance);

/// A number that the program can't keep, which ends it in most fields.
QString Runaway_Number(Chance& chance);

}  // namespace norvane
