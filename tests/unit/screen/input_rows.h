#pragma once

#include "screen/choices.h"

namespace norvane {

inline constexpr InputRow kMedium{0, true};
inline constexpr InputRow kThickness{2, true};
inline constexpr InputRow kDiameter{3, true};
inline constexpr InputRow kLength{InputRow::kLength, true};
inline constexpr InputRow kTableTemperature{1, false};
inline constexpr InputRow kHumidity{4, false};

}  // namespace norvane
