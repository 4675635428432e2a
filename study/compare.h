#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "study/object.h"
#include "study/result.h"

namespace norvane {

enum class Fuel { kGas, kOil, kElectricity };

/// What heat costs: money for a cubic metre of gas, a litre of oil or a kilowatt-hour.
struct EnergyPrice {
  Fuel fuel = Fuel::kGas;
  double per_unit = 0;
};

/// Over how many years insulation is paid off, when nothing else is said.
inline constexpr double kUsualYears = 10;

/// A thickness to compare, and what it costs to insulate a metre or a square metre with it.
struct Insulation {
  double thickness_mm = 0;
  std::optional<double> cost;
};

struct CompareRequest {
  Object object;  ///< its thickness isn't read; a year is its `days`
  std::vector<Insulation> choices;
  std::optional<EnergyPrice> energy;
  double years = kUsualYears;  ///< over which the insulation is paid off
};

/// What a choice is worth. Money is that of the prices; without them, or where nothing is saved or
/// no heat flows, it has none.
struct Compared {
  double thickness_mm = 0;
  std::variant<HeatLossResult, Reason> result;
  std::optional<double> money_per_year;  ///< saved
  std::optional<double> payback_years;   ///< until the savings have paid the insulation
  std::optional<double> yearly_cost;     ///< of the heat that still flows, and a year's share of
                                         ///< the insulation
  bool economic = false;  ///< the least yearly cost of all choices, the thinner one of equals
};

/// The thicknesses that are compared when none are named: the steps of the main screen's arrows,
/// and on in tens to the most that its field takes.
std::vector<Insulation> Usual_Choices();

/// An amount as it is shown, in units of the last decimal; nothing for none, and for one that no
/// count reaches.
/// @param amount of money, or of years
/// @param decimals 0 to `kMostDecimals`
std::optional<std::int64_t> Shown_Amount(const std::optional<double>& amount, int decimals);

/// A row for each choice, in their order.
/// @param request the object, what it is compared with, and the prices
std::vector<Compared> Compare(const CompareRequest& request);

}  // namespace norvane
