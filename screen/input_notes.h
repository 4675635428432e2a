#pragma once

#include <string_view>

#include "calc/limits.h"

namespace norvane {

struct Module1;
class Warmt;

/// What came of a text that an input field was given.
enum class GivenText {
  kTaken,  ///< as it is, or without its leading zeros
  kCut,    ///< to the nearest limit
  kLost,   ///< in part or as a whole: the field holds what the text doesn't say
};

/// @param given the whole text
/// @param held what the field holds since
/// @param limits those of the field
GivenText What_Came_Of(std::string_view given, std::string_view held, const Limits& limits);

/// Whether the degrees Fahrenheit beside a temperature are still those of the other mode.
/// @param index 0 medium, 1 ambient temperature
bool Is_Fahrenheit_Stale(const Module1& module1, Warmt& warmt, int index);

}  // namespace norvane
