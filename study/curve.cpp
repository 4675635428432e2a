#include "study/curve.h"

#include "calc/dew_point.h"
#include "calc/limits.h"
#include "data/runtime_error.h"

namespace norvane {

std::vector<ThicknessPoint> Heat_Loss_Curve(HeatFlowInput input) {
  std::vector<ThicknessPoint> points;
  points.reserve(static_cast<std::size_t>(kMostThickness) + 1);
  for (int mm = 0; mm <= kMostThickness; ++mm) {
    input.d_ins = To_Single(mm / 1000.0);
    try {
      points.push_back({static_cast<double>(mm), Heat_Loss(input)});
    } catch (const RuntimeError&) {
      continue;
    }
  }
  return points;
}

std::vector<HumidityPoint> Condensation_Curve(CondensInput input, float Alpha,
                                              std::span<const double> humidities) {
  std::vector<HumidityPoint> points;
  for (const double humidity : humidities) {
    input.humidity = To_Single(humidity);
    const float T_dew = Trt_DauwPunt(input.T_amb, input.humidity);
    // Every difference that the table holds is above 0.
    if (T_dew == input.T_amb) continue;
    try {
      points.push_back({humidity, T_dew, Condensation(input, Alpha)});
    } catch (const RuntimeError&) {
      break;
    }
  }
  return points;
}

}  // namespace norvane
