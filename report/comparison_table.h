#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/conversions.h"
#include "report/wording.h"
#include "study/object.h"
#include "study/prices.h"

namespace norvane {

/// The thicknesses of an object beside one another, as a user sees them.
struct ComparisonTable {
  enum Column : std::uint8_t {
    kThickness,
    kSurface,
    kHeatFlow,
    kSavingPercent,
    kGas,
    kOil,
    kElectricity,
    kCost,  ///< what the user enters
    kMoney,
    kPayback,
    kYearlyCost,
    kMarks,
    kColumns,
  };

  struct Cell {
    std::string text;  ///< UTF-8, numbers in the user's signs; empty where there is nothing to say
    std::optional<double> number;  ///< that of the text
  };

  struct Row {
    double thickness_mm = 0;
    bool present = false;   ///< the thickness that the main screen has
    bool economic = false;  ///< the least yearly cost
    std::vector<Cell> cells;
  };

  std::vector<std::string> headings;
  std::vector<Row> rows;
};

/// Compares the usual thicknesses and the object's own. The numbers are those that the main screen
/// shows for each of them. Where it shows bare noughts, the row says that there is no saving; where
/// it couldn't calculate, the row has a thickness alone.
/// @param object with the present thickness
/// @param prices of energy and of the thicknesses
/// @param wording texts of the current language
/// @param locale the user's number signs
ComparisonTable Comparison_Of(const Object& object, const Prices& prices, const Wording& wording,
                              const Locale& locale);

/// Headings and rows, a tab between the cells and a line feed behind each line.
/// @param table a comparison
std::string As_Text(const ComparisonTable& table);

}  // namespace norvane
