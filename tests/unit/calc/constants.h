#pragma once

#include <limits>

#include "calc/conversions.h"

namespace norvane {

inline constexpr Locale kPoint{'.'};
inline constexpr Locale kComma{','};
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

}  // namespace norvane
