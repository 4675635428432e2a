#include "calc/condensation.h"

#include "calc/dew_point.h"
#include "calc/heat_loss.h"
#include "data/runtime_error.h"

namespace norvane {
namespace {

constexpr float kSearchStart = -0.0001F;  // m; the first step lands on practically 0
constexpr double kSearchStep = 0.0001;    // m
constexpr float kMetresToMm = 1000.0F;

// A thicker layer doesn't fit the 16-bit millimetres that the inch form and the picture take.
constexpr double kThickestMetres = 32.7675;

/// How often the temperature that the insulation takes over contains the one left to the air.
double Temperature_Ratio(const CondensInput& input, double T_dew) {
  return (T_dew - input.T_med) / (input.T_amb - T_dew);
}

bool Can_Condense(const CondensInput& input, double T_dew) { return input.T_amb - T_dew > 0; }

float Surface_Temperature(const CondensInput& input, double divisor) {
  return To_Single(Divide(static_cast<double>(input.T_med) - input.T_amb, divisor) + input.T_amb);
}

void On_Sheet(const CondensInput& input, double T_dew, CondensResult& result) {
  const double lambda_T = result.lambda_T;
  const double Alpha = result.Alpha;
  if (Can_Condense(input, T_dew)) {
    result.d_mm =
        To_Single(Temperature_Ratio(input, T_dew) * Divide(lambda_T, Alpha) * kMetresToMm);
  }
  if (result.d_mm < 0) result.d_mm = 0;
  // Millimetres where the relation has metres: the shown surface lies close to the air's
  // temperature, and so it has always been shown.
  result.T_surf = Surface_Temperature(input, Divide(Alpha * result.d_mm, lambda_T) + 1.0);
}

void On_Pipe(const CondensInput& input, double T_dew, CondensResult& result) {
  const double lambda_T = result.lambda_T;
  const double Alpha = result.Alpha;
  const double D_pipe = input.D_pipe == 0 ? kEmptyDiameter : input.D_pipe;
  const bool can_condense = Can_Condense(input, T_dew);
  const double needed =
      can_condense ? Temperature_Ratio(input, T_dew) * Divide(2 * lambda_T, Alpha) : 0;

  float d = kSearchStart;
  double D_out = 0;
  double reached = 0;
  do {
    // Each pass starts from the thickness as a single, but goes on with the unrounded one.
    const double x = d + kSearchStep;
    d = static_cast<float>(x);
    if (x > kThickestMetres) throw RuntimeError(RuntimeError::kOverflow);
    const double y = x + x + D_pipe;
    D_out = To_Single(y);
    reached = Natural_Log(y / D_pipe) * D_out;
    ++result.passes;
  } while (can_condense && reached < needed);

  const double L = Natural_Log(D_out / D_pipe);
  result.T_surf = Surface_Temperature(input, Divide(Alpha, 2 * lambda_T) * D_out * L + 1.0);
  result.d_mm = To_Single(static_cast<double>(d) * kMetresToMm);
}

}  // namespace

CondensResult Condensation(const CondensInput& input, float Alpha) {
  const double T_mean = To_Single((static_cast<double>(input.T_amb) + input.T_med) / 2.0);
  CondensResult result;
  result.lambda_T = To_Single(T_mean * kLambdaSlope + input.Lambda);
  result.Alpha = Alpha;
  const double T_dew = Trt_DauwPunt(input.T_amb, input.humidity);
  (input.Sel_Size == kSheet ? On_Sheet : On_Pipe)(input, T_dew, result);
  return result;
}

CondensResult Condensation(const CondensInput& input, const Locale& locale) {
  return Condensation(input, Effective_Alpha(input.alpha_text, input.Sel_Size, locale));
}

}  // namespace norvane
