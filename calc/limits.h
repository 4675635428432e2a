#pragma once

namespace norvane {

/// What a number may be, both ends included.
struct Limits {
  double least;
  double most;
};

/// Medium (0) and ambient temperature (1), degrees Celsius.
inline constexpr Limits kTemperatureLimits[] = {{-50, 115}, {-60, 110}};

/// What a click on the arrows of these two changes, degrees Celsius.
inline constexpr double kTemperatureStep = 5;

/// Thickness of the insulation, mm.
inline constexpr double kMostThickness = 100;

/// A smaller diameter stops the calculation; mm. The largest is the last size of the pipe family.
inline constexpr double kLeastDiameter = 6;

/// Metres of pipe, square metres of sheet.
inline constexpr double kMostLength = 10000;

/// Conductivity as declared, at 40 degrees Celsius, W/mK; both pass.
inline constexpr float kLeastLambda = 0.015F;
inline constexpr float kMostLambda = 0.06F;

/// From lambda at 0 degrees Celsius to the declared one at 40, as the processor computes the
/// difference: a little less than 0.006.
inline constexpr double kLambdaDifference = 0.038 - 0.032;

}  // namespace norvane
