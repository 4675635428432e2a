#pragma once

#include <optional>
#include <string>

#include "calc/condensation.h"
#include "calc/conversions.h"
#include "calc/heat_loss.h"

/// A second way to both calculations, to compare the program with. It shares nothing with `calc/`
/// but the input records: it works in extended precision, rounds where a value is named single,
/// reads the alpha text by itself and has a dew-point table of its own.
namespace norvane::reference {

/// What the reference throws in place of a `RuntimeError`.
struct Failure {
  int number;
};

struct Flow {
  float lambda_T = 0;
  float Alpha = 0;
  float T_surf = 0;
  float Q_bare = 0;
  float Q_ins = 0;
};

struct Saved {
  long double percent = 0;  ///< before its rounding to a whole number
  float difference = 0;
  long double gas = 0;  ///< before the rounding to double
  long double oil = 0;
  float electricity = 0;
};

struct Thickness {
  float d_mm = 0;
  float lambda_T = 0;
  float Alpha = 0;
  float T_surf = 0;
  int passes = 0;
};

float Dew_Point(float T_amb, float humidity);

Flow Heat_Flow(const HeatLossInput& input, const Locale& locale);

/// Apart from the flow, so that it can be asked about the very singles that the program found.
std::optional<Saved> Savings_Of(const HeatLossInput& input, float Q_bare, float Q_ins);

Thickness Least_Thickness(const CondensInput& input, const Locale& locale);

}  // namespace norvane::reference
