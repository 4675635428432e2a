#pragma once

#include <optional>

#include "study/object.h"

namespace norvane {

struct Module1;
class Warmt;

/// The object that the fields of the main screen hold in its present mode. Its heat loss is that of
/// the screen to the last shown digit. The thickness of condensation is the one that is shown.
/// Nothing where a number in a field is beyond its range.
/// @param module1 the shared state
/// @param warmt the main screen
std::optional<Object> Present_Object(const Module1& module1, Warmt& warmt);

}  // namespace norvane
