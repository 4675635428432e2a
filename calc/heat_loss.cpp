#include "calc/heat_loss.h"

#include <cmath>

#include "calc/heat_loss_steps.h"

namespace norvane {
namespace {

struct HeatFlow {
  float T_surf;
  float Q_bare;
  float Q_ins;
};

HeatFlow Through_Sheet(double dT, double T_amb, double d_ins, double lambda_T, double Alpha) {
  return {To_Single(Divide(dT, Divide(Alpha * d_ins, lambda_T) + 1.0) + T_amb),
          To_Single(dT * Alpha),
          To_Single(Divide(dT, Divide(d_ins, lambda_T) + Divide(1.0, Alpha)))};
}

HeatFlow Through_Pipe(const HeatLossSteps& steps, double T_amb, double lambda_T, double Alpha) {
  const auto& [T_mean, dT, D_pipe, D_out, L] = steps;
  return {To_Single(Divide(dT, Divide(Alpha, 2 * lambda_T) * D_out * L + 1.0) + T_amb),
          To_Single(dT * Alpha * kPi * D_pipe),
          To_Single(Divide(dT * kPi, Divide(1.0, 2 * lambda_T) * L + Divide(1.0, Alpha * D_out)))};
}

/// Of a flow that needn't be a single.
Fuels Fuels_Of(double heat_flow, const HeatFlowInput& input) {
  const double heat = To_Single(heat_flow * kWattToKilojoulePerHour);
  const auto over_the_period = [&](double per_hour) {
    return per_hour * input.Hr_Day * input.Days * input.Mtrs;
  };
  return {over_the_period(heat / kGasHeatingValue), over_the_period(heat / kOilHeatingValue),
          To_Single(over_the_period(heat / kKilojoulePerKwh))};
}

Savings Saved(const HeatFlowInput& input, float Q_bare, float Q_ins) {
  const double gain = static_cast<double>(Q_bare) - Q_ins;
  const Fuels fuels = Fuels_Of(std::abs(gain), input);
  Savings savings;
  savings.Saving_Pct = Q_bare == 0 ? std::int16_t{0} : To_Int16(std::abs(gain / Q_bare) * 100.0);
  savings.difference = To_Single(std::abs(gain));
  savings.gas = fuels.gas;
  savings.oil = fuels.oil;
  savings.electricity = fuels.electricity;
  return savings;
}

}  // namespace

Fuels Fuels_For(float heat_flow, const HeatFlowInput& input) {
  return Fuels_Of(std::abs(static_cast<double>(heat_flow)), input);
}

float Default_Alpha(std::int16_t Sel_Size) {
  return Sel_Size == kCopperTube || Sel_Size == kMetricPipe ? 10.0F : 12.5F;
}

float Effective_Alpha(const std::string& alpha_text, std::int16_t Sel_Size, const Locale& locale) {
  if (!alpha_text.empty()) {
    const double typed = To_Number(alpha_text, locale);
    if (typed > 0) return To_Single(typed);
  }
  return Default_Alpha(Sel_Size);
}

HeatLossSteps Steps_Of(const HeatFlowInput& input) {
  HeatLossSteps steps;
  steps.T_mean = To_Single((input.T_med + input.T_amb) / 2.0);
  steps.dT = input.T_med - input.T_amb;
  if (input.Sel_Size == kSheet) return steps;
  // The substitute is in metres where the field has millimetres: an empty diameter is a pipe of 10
  // m.
  steps.D_pipe = input.D_pipe == 0 ? kEmptyDiameter : input.D_pipe;
  const double d_ins = input.d_ins;
  steps.D_out = To_Single(d_ins + d_ins + steps.D_pipe);
  steps.L = Natural_Log(steps.D_out / steps.D_pipe);
  return steps;
}

HeatLossResult Heat_Loss(const HeatFlowInput& input) {
  const HeatLossSteps steps = Steps_Of(input);

  HeatLossResult result;
  result.lambda_T = To_Single(steps.T_mean * kLambdaSlope + input.Lambda);
  result.Alpha = input.Alpha;
  const HeatFlow flow =
      input.Sel_Size == kSheet
          ? Through_Sheet(steps.dT, input.T_amb, input.d_ins, result.lambda_T, result.Alpha)
          : Through_Pipe(steps, input.T_amb, result.lambda_T, result.Alpha);
  result.T_surf = flow.T_surf;
  result.Q_bare = flow.Q_bare;
  result.Q_ins = flow.Q_ins;

  // A cold medium keeps its savings: there the absolute values tell what the insulation holds back.
  if (!input.hot_medium || static_cast<double>(flow.Q_bare) - flow.Q_ins >= 0) {
    result.savings = Saved(input, flow.Q_bare, flow.Q_ins);
  }
  return result;
}

HeatFlowInput In_Numbers(const HeatLossInput& input, const Locale& locale) {
  // Sum and difference are 16-bit numbers too.
  To_Int16(input.T_med + input.T_amb);
  To_Int16(input.T_med - input.T_amb);
  HeatFlowInput numbers;
  numbers.T_med = input.T_med;
  numbers.T_amb = input.T_amb;
  numbers.d_ins = input.d_ins;
  numbers.D_pipe = input.D_pipe;
  numbers.Alpha = Effective_Alpha(input.alpha_text, input.Sel_Size, locale);
  numbers.Sel_Size = input.Sel_Size;
  numbers.Lambda = input.Lambda;
  numbers.Hr_Day = input.Hr_Day;
  numbers.Days = input.Days;
  numbers.Mtrs = input.Mtrs;
  numbers.hot_medium = input.raw_T_med > input.raw_T_amb;
  return numbers;
}

HeatLossResult Heat_Loss(const HeatLossInput& input, const Locale& locale) {
  return Heat_Loss(In_Numbers(input, locale));
}

}  // namespace norvane
