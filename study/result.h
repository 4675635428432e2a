#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "calc/condensation.h"
#include "calc/heat_loss.h"
#include "study/object.h"
#include "study/reason.h"

namespace norvane {

/// What the medium loses or gains through the bare and the insulated object, by the rules of the
/// main screen but for the decimals. What its fields wouldn't take has a reason instead.
/// @param object in degrees Celsius, millimetres and the units of its names
std::variant<HeatLossResult, Reason> Heat_Loss_Of(const Object& object);

/// The least thickness without condensation. Air that the dew-point table doesn't hold has a reason
/// instead, where the main screen, which steps through the table, shows 0.0.
/// @param object whose humidity is read, and not its thickness
std::variant<CondensResult, Reason> Condensation_Of(const Object& object);

/// The numbers that `Heat_Loss` takes of an object: metres and square metres, singles.
/// @param object inside the limits of its columns
HeatFlowInput Flow_Input(const Object& object);

/// A result column: its name with the unit, and the decimals that the main screen shows.
struct ResultColumn {
  std::string_view name;
  int decimals;
  std::string_view meaning;
};

inline constexpr std::array<ResultColumn, 10> kHeatLossColumns = {{
    {"lambda_mean_W_mK", 3, "conductivity at the mean temperature"},
    {"alpha_used_W_m2K", 1, "surface heat-transfer coefficient in effect"},
    {"surface_C", 1, "temperature of the insulation's surface"},
    {"bare_W_per_m_or_m2", 1, "heat flow without insulation, of a metre or square metre"},
    {"insulated_W_per_m_or_m2", 1, "the same with insulation"},
    {"saving_percent", 0, "what the insulation saves"},
    {"saving_W_per_m_or_m2", 2, "the same, of a metre or square metre"},
    {"gas_m3", 2, "natural gas saved in all hours, days and metres"},
    {"oil_l", 2, "heating oil saved"},
    {"electricity_kWh", 2, "electricity saved"},
}};

/// The column behind the results of a file: "no saving", or why a row has no result.
inline constexpr std::string_view kRemarkColumn = "remark";

/// The first column that tells of a saving.
inline constexpr std::size_t kFirstSaving = 5;

/// A heat loss as the main screen shows it, in units of each column's last decimal.
struct ShownHeatLoss {
  std::array<std::int64_t, kHeatLossColumns.size()> values{};
  /// When false, the insulated object loses more than the bare one, and the values from
  /// `kFirstSaving` on are none. The main screen shows bare noughts and the percentage of before.
  bool saves = false;
};

ShownHeatLoss Shown_Heat_Loss(const HeatLossResult& result);

inline constexpr std::array<ResultColumn, 4> kCondensationColumns = {{
    {"least_thickness_mm", 1, "the least thickness without condensation"},
    {"lambda_mean_W_mK", 3, "conductivity at the mean temperature"},
    {"alpha_used_W_m2K", 1, "surface heat-transfer coefficient in effect"},
    {"surface_C", 1, "temperature of the insulation's surface"},
}};

std::array<std::int64_t, kCondensationColumns.size()> Shown_Condensation(
    const CondensResult& result);

}  // namespace norvane
