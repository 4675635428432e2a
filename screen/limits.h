#pragma once

namespace norvane {

/// What an input row takes, both ends included.
struct Limits {
  double least;
  double most;
};

/// Medium (0) and ambient temperature (1), degrees Celsius.
inline constexpr Limits kTemperatureLimits[] = {{-50, 115}, {-60, 110}};

/// A smaller diameter stops the calculation; mm.
inline constexpr double kLeastDiameter = 6;

}  // namespace norvane
