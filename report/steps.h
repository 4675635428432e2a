#pragma once

#include <string>
#include <vector>

#include "calc/conversions.h"
#include "report/calculation_report.h"
#include "study/object.h"

namespace norvane {

/// Names and values of what stands in formulas: {"a + b", {{"a", 1}, {"b", 2}}}. A symbol of
/// several letters, such as Ta, is one name.
struct Symbol {
  std::string name;
  double value;
};

/// The formula with the values in the places of the symbols, negative ones in brackets. Values have
/// at most six significant digits.
/// @param formula of symbols, numbers and signs
/// @param symbols all that may stand in it
/// @param locale the user's number signs
std::string With_Numbers(const std::string& formula, const std::vector<Symbol>& symbols,
                         const Locale& locale);

/// The formulas of the heat loss of an object; none for one that has a reason instead.
/// @param object with its thickness
/// @param locale the user's number signs
std::vector<CalculationReport::Step> Heat_Loss_Steps(const Object& object, const Locale& locale);

/// The formulas of the thickness without condensation; none for an object that has a reason
/// instead, or that stays dry without insulation.
/// @param object with the humidity of the air
/// @param locale the user's number signs
std::vector<CalculationReport::Step> Condensation_Steps(const Object& object, const Locale& locale);

}  // namespace norvane
