#pragma once

#include <cstdint>
#include <string>

#include "calc/conversions.h"

namespace norvane {

struct CondensInput {
  float T_med = 0;         ///< medium, degrees Celsius
  float T_amb = 0;         ///< surrounding air, degrees Celsius
  float humidity = 0;      ///< relative humidity of the air, percent
  float D_pipe = 0;        ///< outer diameter of the bare pipe, m; not read for a sheet
  std::string alpha_text;  ///< surface heat-transfer coefficient as typed, W/m2K; may be empty
  std::int16_t Sel_Size = 0;
  float Lambda = 0;  ///< conductivity at 0 degrees Celsius, W/mK

  bool operator==(const CondensInput&) const = default;
};

struct CondensResult {
  float d_mm = 0;      ///< the least thickness without condensation, mm
  float lambda_T = 0;  ///< conductivity at mean temperature, W/mK
  float Alpha = 0;     ///< surface heat-transfer coefficient in effect, W/m2K
  float T_surf = 0;    ///< surface of the insulation, degrees Celsius
  int passes = 0;      ///< steps of the search; 0 for a sheet
};

/// The thickness at which the surface of the insulation stays at the dew point of the air: for a
/// sheet from the plane-wall relation, for a pipe by a search in steps of 0.1 mm.
/// Throws `RuntimeError` 6 when the search passes 32.7675 m, and 5, 6, 11 or 13 where another
/// value leaves the range of its type.
/// @param input the object and the air around it
/// @param locale the user's number signs
CondensResult Condensation(const CondensInput& input, const Locale& locale);

/// The same with the surface heat-transfer coefficient `Alpha`, W/m2K, whatever its text says.
/// @param input the object and the air around it
/// @param Alpha surface heat-transfer coefficient, W/m2K
CondensResult Condensation(const CondensInput& input, float Alpha);

}  // namespace norvane
