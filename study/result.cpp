#include "study/result.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "calc/dew_point.h"
#include "calc/shown_number.h"
#include "calc/sizes.h"
#include "data/runtime_error.h"

namespace norvane {
namespace {

float Metres(double millimetres) { return To_Single(millimetres / 1000.0); }

bool Is_Read(const Column& column, const Object& object, Question question) {
  if (column.number == nullptr || !Is_Asked(column, question)) return false;
  const bool sheet = object.kind == kSheet;
  if (column.number == &Object::diameter_mm || column.number == &Object::length_m) return !sheet;
  return column.number != &Object::area_m2 || sheet;
}

/// The largest that the column takes of an object: a diameter the last size of its family.
double Most(const Column& column, const Object& object) {
  return column.number == &Object::diameter_mm ? Pipe_Sizes(object.kind).back().mm
                                               : column.limits.most;
}

bool May_Be_Left_Out(const Column& column) { return column.number == &Object::alpha_W_m2K; }

std::optional<Reason> Reason_Against(const Object& object, Question question) {
  if (object.kind < kSteelPipe || object.kind > kSheet) return Reason{Reason::kUnknownKind, "kind"};
  for (const Column& column : Columns()) {
    if (!Is_Read(column, object, question)) continue;
    // The limits of lambda are singles, and so is what is compared with them.
    const double value = object.*column.number;
    const double compared =
        column.number == &Object::lambda_W_mK ? static_cast<float>(value) : value;
    const double most = Most(column, object);
    if (compared >= column.limits.least && compared <= most) continue;
    if (!std::isnan(value)) {
      return value < column.limits.least
                 ? Reason{Reason::kTooSmall, column.name, column.limits.least}
                 : Reason{Reason::kTooLarge, column.name, most};
    }
    if (!May_Be_Left_Out(column)) return Reason{Reason::kMissing, column.name};
  }
  return std::nullopt;
}

/// At 0 degrees Celsius, as the formulas take it, of the declared one at 40.
float Lambda_At_0(double declared) {
  return To_Single(static_cast<double>(To_Single(declared)) - kLambdaDifference);
}

float Alpha_Of(const Object& object) {
  return object.alpha_W_m2K > 0 ? To_Single(object.alpha_W_m2K) : Default_Alpha(object.kind);
}

template <class Result, class Calculation>
std::variant<Result, Reason> Result_Or_Reason(const Calculation& calculation) {
  try {
    return calculation();
  } catch (const RuntimeError&) {
    return Reason{Reason::kBeyondRange, {}};
  }
}

CondensInput Condensation_Input(const Object& object) {
  CondensInput input;
  input.T_med = To_Single(object.medium_C);
  input.T_amb = To_Single(object.ambient_C);
  input.humidity = To_Single(object.humidity_percent);
  if (object.kind != kSheet) input.D_pipe = Metres(object.diameter_mm);
  input.Sel_Size = object.kind;
  input.Lambda = Lambda_At_0(object.lambda_W_mK);
  return input;
}

}  // namespace

HeatFlowInput Flow_Input(const Object& object) {
  HeatFlowInput input;
  input.T_med = object.medium_C;
  input.T_amb = object.ambient_C;
  input.d_ins = Metres(object.thickness_mm);
  if (object.kind != kSheet) input.D_pipe = Metres(object.diameter_mm);
  input.Alpha = Alpha_Of(object);
  input.Sel_Size = object.kind;
  input.Lambda = Lambda_At_0(object.lambda_W_mK);
  input.Hr_Day = object.hours_per_day;
  input.Days = object.days;
  input.Mtrs = object.kind == kSheet ? object.area_m2 : object.length_m;
  input.hot_medium = object.medium_C > object.ambient_C;
  return input;
}

std::variant<HeatLossResult, Reason> Heat_Loss_Of(const Object& object) {
  if (const auto reason = Reason_Against(object, Question::kHeatLoss)) return *reason;
  return Result_Or_Reason<HeatLossResult>([&] { return Heat_Loss(Flow_Input(object)); });
}

std::variant<CondensResult, Reason> Condensation_Of(const Object& object) {
  if (const auto reason = Reason_Against(object, Question::kCondensation)) return *reason;
  const CondensInput input = Condensation_Input(object);
  // Every difference that the table holds is above 0.
  if (Trt_DauwPunt(input.T_amb, input.humidity) == input.T_amb) {
    return Reason{Reason::kNoDewPoint, {}};
  }
  return Result_Or_Reason<CondensResult>([&] { return Condensation(input, Alpha_Of(object)); });
}

ShownHeatLoss Shown_Heat_Loss(const HeatLossResult& result) {
  ShownHeatLoss shown;
  std::size_t column = 0;
  const auto show = [&](auto value) {
    shown.values[column] = Shown(value, kHeatLossColumns[column].decimals);
    ++column;
  };
  for (const float value :
       {result.lambda_T, result.Alpha, result.T_surf, result.Q_bare, result.Q_ins}) {
    show(value);
  }
  if (!result.savings) return shown;
  shown.saves = true;
  shown.values[column++] = result.savings->Saving_Pct;
  show(result.savings->difference);
  show(result.savings->gas);
  show(result.savings->oil);
  show(result.savings->electricity);
  return shown;
}

std::array<std::int64_t, kCondensationColumns.size()> Shown_Condensation(
    const CondensResult& result) {
  std::array<std::int64_t, kCondensationColumns.size()> shown{};
  const float values[] = {result.d_mm, result.lambda_T, result.Alpha, result.T_surf};
  for (std::size_t i = 0; i < shown.size(); ++i) {
    shown[i] = Shown(values[i], kCondensationColumns[i].decimals);
  }
  return shown;
}

}  // namespace norvane
