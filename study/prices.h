#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/compare.h"

namespace norvane {

/// Insulation is paid off over more than 0 years and at most so many.
inline constexpr double kMostYears = 1000;

/// What energy and insulation cost, and for whom that is: what a user enters once. Amounts are
/// above or equal to 0, in any currency.
struct Prices {
  std::string project;  ///< a name, UTF-8, without line ends
  Fuel fuel = Fuel::kGas;
  std::array<std::optional<double>, 3> energy;  ///< by `Fuel`, of its unit
  double years = kUsualYears;                   ///< over which the insulation is paid off
  std::map<double, double> of_pipe;   ///< what a metre costs to insulate, by thickness in mm
  std::map<double, double> of_sheet;  ///< the same of a square metre

  bool operator==(const Prices&) const = default;

  /// @param kind a `Kind`
  std::map<double, double>& Costs_Of(std::int16_t kind);
  /// @param kind a `Kind`
  const std::map<double, double>& Costs_Of(std::int16_t kind) const;
  /// The price of the fuel that counts, nothing where it has none.
  std::optional<EnergyPrice> Energy() const;
};

/// The usual thicknesses and those that have a cost, from the thinnest to the thickest, each with
/// the cost that it has.
/// @param costs by thickness in mm, as those of `Prices`
std::vector<Insulation> Choices_With_Costs(const std::map<double, double>& costs);

/// The file in the program's folder that holds them.
inline constexpr const char* kPricesFile = "prices.ini";

/// Reads an amount as a person writes it, with a point or a comma before its decimals. Nothing for
/// any other text, one with both signs included, and for what is below 0 or above a million
/// million.
/// @param text as it was typed
std::optional<double> Read_Amount(std::string_view text);

/// The amount with as many decimals as it has.
/// @param amount above or equal to 0
/// @param decimal_separator the sign before the decimals
std::string Amount_Text(double amount, char decimal_separator);

/// Reads the file. What isn't there or isn't understood is as if it had never been entered.
/// @param file its bytes
Prices Read_Prices(std::string_view file);

/// The file with the prices in it. Lines that say the same already, and all that isn't a price,
/// stay as they are.
/// @param file its bytes before, none for a new one
/// @param prices what it is to say
std::string Write_Prices(std::string_view file, const Prices& prices);

}  // namespace norvane
