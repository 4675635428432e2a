#pragma once

#include <cstdint>

#include "calc/heat_loss.h"

namespace norvane {

/// The number of the text that names a kind of object.
constexpr int Kind_Name_Text(std::int16_t kind) {
  switch (kind) {
    case kSteelPipe:
      return 22;
    case kCopperTube:
      return 23;
    case kMetricPipe:
      return 35;
    default:
      return 33;
  }
}

/// The number of the text with the unit of its heat flow: per metre, of a sheet per square metre.
constexpr int Heat_Flow_Unit_Text(std::int16_t kind) { return kind == kSheet ? 79 : 75; }

}  // namespace norvane
