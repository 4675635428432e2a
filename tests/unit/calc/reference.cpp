#include "reference.h"

#include <cmath>
#include <cstdlib>

#include "../data/dew_figures.h"

namespace norvane::reference {
namespace {

using Wide = long double;

// The constants are doubles, so that the decimal fractions among them keep their double value.
constexpr double kSlope = 0.00015;
constexpr double kPi = 3.1415;
constexpr double kStep = 0.0001;
constexpr double kThickest = 32.7675;

float Single(Wide value) {
  const float rounded = static_cast<float>(value);
  if (!std::isfinite(rounded)) throw Failure{6};
  return rounded;
}

Wide Quotient(Wide dividend, Wide divisor) {
  if (divisor == 0) throw Failure{11};
  return dividend / divisor;
}

Wide Log(Wide value) {
  if (!(value > 0)) throw Failure{5};
  return std::log(value);
}

int Whole16(int value) {
  if (value < -32768 || value > 32767) throw Failure{6};
  return value;
}

float Typed_Alpha(const std::string& text, int Sel_Size, const Locale& locale) {
  const char group = locale.decimal_separator == ',' ? '.' : ',';
  std::string plain;
  for (const char sign : text) {
    if (sign != group) plain += sign == locale.decimal_separator ? '.' : sign;
  }
  const double typed = std::strtod(plain.c_str(), nullptr);
  if (typed > 0) return Single(typed);
  return Sel_Size == kCopperTube || Sel_Size == kMetricPipe ? 10.0F : 12.5F;
}

float Diameter(float D_pipe) { return D_pipe == 0 ? 10.0F : D_pipe; }

/// The surface of an insulated pipe, from the single diameters.
float Pipe_Surface(Wide dT, Wide T_amb, const Wide Alpha, const Wide lambda_T, float D_out,
                   float D_pipe) {
  const Wide L = Log(Quotient(D_out, D_pipe));
  return Single(Quotient(dT, Quotient(Alpha, 2 * lambda_T) * D_out * L + 1) + T_amb);
}

void Search_Thickness(Thickness& result, Wide dew_ratio, bool has_gap, float D_pipe, float& d,
                      float& D_out) {
  d = -0.0001F;
  Wide A = 0;
  Wide B = 1;
  while (A < B) {
    ++result.passes;
    const Wide x = Wide{d} + kStep;
    d = Single(x);
    if (Wide{d} > kThickest) throw Failure{6};
    const Wide y = x + x + D_pipe;
    D_out = Single(y);
    A = Log(Quotient(y, D_pipe)) * D_out;
    if (!has_gap) return;
    B = dew_ratio * Quotient(2 * Wide{result.lambda_T}, result.Alpha);
  }
}

void Sheet_Thickness(Thickness& result, Wide T_med, Wide T_amb, Wide T_dew) {
  const Wide lambda_T = result.lambda_T;
  const Wide Alpha = result.Alpha;
  if (T_amb - T_dew > 0) {
    const Wide ratio = (T_dew - T_med) / (T_amb - T_dew);
    result.d_mm = Single(ratio * Quotient(lambda_T, Alpha) * 1000);
  }
  if (result.d_mm < 0) result.d_mm = 0;
  // Millimetres stand where metres belong.
  const Wide resistance = Quotient(Alpha * result.d_mm, lambda_T) + 1;
  result.T_surf = Single(Quotient(T_med - T_amb, resistance) + T_amb);
}

}  // namespace

float Dew_Point(float T_amb, float humidity) {
  for (const DewRow& row : Dew_Figures()) {
    if (static_cast<float>(row.T_amb) != T_amb) continue;
    for (int column = 0; column < kHumidities; ++column) {
      if (humidity == static_cast<float>(30 + 5 * column)) {
        return Single(Wide{T_amb} - Single(row.below[static_cast<std::size_t>(column)]));
      }
    }
  }
  return T_amb;
}

Flow Heat_Flow(const HeatLossInput& input, const Locale& locale) {
  Flow flow;
  const Wide T_amb = input.T_amb;
  const float T_mean = Single(Wide{static_cast<Wide>(Whole16(input.T_med + input.T_amb))} / 2);
  const Wide dT = Whole16(input.T_med - input.T_amb);
  const Wide d_ins = input.d_ins;

  flow.lambda_T = Single(Wide{T_mean} * kSlope + input.Lambda);
  flow.Alpha = Typed_Alpha(input.alpha_text, input.Sel_Size, locale);
  const Wide lambda_T = flow.lambda_T;
  const Wide Alpha = flow.Alpha;

  if (input.Sel_Size == kSheet) {
    flow.T_surf = Single(Quotient(dT, Quotient(Alpha * d_ins, lambda_T) + 1) + T_amb);
    flow.Q_bare = Single(dT * Alpha);
    flow.Q_ins = Single(Quotient(dT, Quotient(d_ins, lambda_T) + Quotient(1, Alpha)));
    return flow;
  }

  const float D_pipe = Diameter(input.D_pipe);
  const float D_out = Single(d_ins + d_ins + D_pipe);
  flow.T_surf = Pipe_Surface(dT, T_amb, Alpha, lambda_T, D_out, D_pipe);
  flow.Q_bare = Single(dT * Alpha * kPi * D_pipe);
  const Wide L = Log(Quotient(D_out, D_pipe));
  const Wide resistance = Quotient(1, 2 * lambda_T) * L + Quotient(1, Alpha * D_out);
  flow.Q_ins = Single(Quotient(dT * kPi, resistance));
  return flow;
}

std::optional<Saved> Savings_Of(const HeatLossInput& input, float Q_bare, float Q_ins) {
  const Wide gap = Wide{Q_bare} - Wide{Q_ins};
  if (input.raw_T_med > input.raw_T_amb && gap < 0) return std::nullopt;

  Saved saved;
  // The one step in double: 18/5 of a single lies on a rounding border so often that the precision
  // of the product decides the single that it is stored as.
  const Wide E_saved = Single(std::fabs(static_cast<double>(gap)) * 3.6);
  saved.percent = Q_bare == 0 ? 0 : std::fabs(gap / Q_bare) * 100;
  saved.difference = Single(std::fabs(gap));
  saved.gas = E_saved / 34880 * input.Hr_Day * input.Days * input.Mtrs;
  saved.oil = E_saved / 43860 * input.Hr_Day * input.Days * input.Mtrs;
  saved.electricity = Single(E_saved / 3600 * input.Hr_Day * input.Days * input.Mtrs);
  return saved;
}

Thickness Least_Thickness(const CondensInput& input, const Locale& locale) {
  Thickness result;
  const Wide T_med = input.T_med;
  const Wide T_amb = input.T_amb;
  const float T_mean = Single((T_amb + T_med) / 2);
  result.lambda_T = Single(Wide{T_mean} * kSlope + input.Lambda);
  result.Alpha = Typed_Alpha(input.alpha_text, input.Sel_Size, locale);
  const Wide T_dew = Dew_Point(input.T_amb, input.humidity);

  if (input.Sel_Size == kSheet) {
    Sheet_Thickness(result, T_med, T_amb, T_dew);
    return result;
  }

  const float D_pipe = Diameter(input.D_pipe);
  const bool has_gap = T_amb - T_dew > 0;
  const Wide dew_ratio = has_gap ? (T_dew - T_med) / (T_amb - T_dew) : 0;
  float d = 0;
  float D_out = 0;
  Search_Thickness(result, dew_ratio, has_gap, D_pipe, d, D_out);
  result.T_surf = Pipe_Surface(T_med - T_amb, T_amb, result.Alpha, result.lambda_T, D_out, D_pipe);
  result.d_mm = Single(Wide{d} * 1000);
  return result;
}

}  // namespace norvane::reference
