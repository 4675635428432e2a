#pragma once

#include <span>
#include <vector>

#include "calc/condensation.h"
#include "calc/heat_loss.h"

namespace norvane {

/// What a thickness of the insulation comes to.
struct ThicknessPoint {
  double thickness_mm = 0;
  HeatLossResult result;
};

/// A point for each whole millimetre from 0 to `kMostThickness`, ascending. A thickness for which a
/// value leaves its range has none.
/// @param input whose thickness isn't read
std::vector<ThicknessPoint> Heat_Loss_Curve(HeatFlowInput input);

/// What a humidity of the air comes to.
struct HumidityPoint {
  double humidity = 0;  ///< relative, percent
  float T_dew = 0;      ///< degrees Celsius
  CondensResult result;
};

/// A point for each humidity at which the dew-point table has one for the air's temperature. The
/// curve ends before the first one that asks for a thickness beyond all range.
/// @param input whose humidity isn't read
/// @param Alpha surface heat-transfer coefficient, W/m2K
/// @param humidities percent, ascending
std::vector<HumidityPoint> Condensation_Curve(CondensInput input, float Alpha,
                                              std::span<const double> humidities);

}  // namespace norvane
