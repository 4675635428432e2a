#pragma once

namespace norvane {

/// What the main screen puts where there is nothing to calculate with.
inline constexpr double kStartAmbient = 24;   ///< degrees Celsius, against condensation
inline constexpr double kStartHumidity = 60;  ///< per cent
inline constexpr double kStartDiameter = 10;  ///< mm

}  // namespace norvane
