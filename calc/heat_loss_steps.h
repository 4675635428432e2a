#pragma once

#include "calc/heat_loss.h"

namespace norvane {

/// Four decimals only: the program's answers have always been those of this value.
inline constexpr double kPi = 3.1415;
inline constexpr double kWattToKilojoulePerHour = 3.6;
inline constexpr double kGasHeatingValue = 34880.0;  ///< kJ per m3
inline constexpr double kOilHeatingValue = 43860.0;  ///< kJ per litre
inline constexpr float kKilojoulePerKwh = 3600.0F;

/// What `Heat_Loss` passes through on its way to the results.
struct HeatLossSteps {
  double T_mean = 0;  ///< of medium and surroundings, degrees Celsius
  double dT = 0;      ///< medium less surroundings, degrees Celsius
  double D_pipe = 0;  ///< outer diameter of the bare pipe, m; 0 for a sheet
  double D_out = 0;   ///< over the insulation, m; 0 for a sheet
  double L = 0;       ///< natural logarithm of D_out / D_pipe; 0 for a sheet
};

/// The steps of an object. Throws `RuntimeError` 5 or 6 where a value leaves the range of its type.
/// @param input the object
HeatLossSteps Steps_Of(const HeatFlowInput& input);

}  // namespace norvane
