#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

#include "calc/heat_loss.h"
#include "calc/limits.h"

namespace norvane {

/// A number that isn't given, and has no usual value.
inline constexpr double kNotGiven = std::numeric_limits<double>::quiet_NaN();

/// What is insulated: a pipe or a sheet in its surroundings. Decimals count wherever they stand.
/// The main screen takes temperatures, hours, days and metres as whole numbers; for whole numbers
/// the results are its own to the last digit.
struct Object {
  std::int16_t kind = kSteelPipe;
  double medium_C = kNotGiven;
  double ambient_C = kNotGiven;
  double humidity_percent = kNotGiven;  ///< read for the condensation thickness alone
  double thickness_mm = kNotGiven;      ///< read for the heat loss alone
  double diameter_mm = kNotGiven;       ///< outer diameter of the bare pipe; not read for a sheet
  double lambda_W_mK = 0.038;           ///< as declared, at 40 degrees Celsius
  double alpha_W_m2K = kNotGiven;  ///< when not given, or not above 0: the usual one of the kind
  double length_m = 1;             ///< of a pipe
  double area_m2 = 1;              ///< of a sheet
  double hours_per_day = 24;
  double days = 30;
};

/// The question that is asked of an object.
enum class Question { kHeatLoss, kComparison, kCondensation };

/// A column of a schedule, named with its unit.
struct Column {
  std::string_view name;
  double Object::*number;  ///< null for the name and the kind
  Limits limits;
  bool for_heat_loss;
  bool for_condensation;
  bool required;           ///< in the header; a sheet may leave its diameter empty
  std::string_view usual;  ///< what an empty field counts as
  std::string_view meaning;
};

/// All columns, in the order in which a schedule is written.
std::span<const Column> Columns();

bool Is_Asked(const Column& column, Question question);

/// The words of the column `kind`, by the value of the kind.
inline constexpr std::array<std::string_view, 4> kKindWords = {"steel", "copper", "metric",
                                                               "sheet"};

}  // namespace norvane
