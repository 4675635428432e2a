#pragma once

#include <string>
#include <vector>

#include "report/wording.h"

namespace norvane {

struct Module1;
class Warmt;

/// The present calculation as a reviewer reads it. All texts are UTF-8, numbers in the user's
/// signs.
struct CalculationReport {
  /// A number with what it is. Its symbol is the one that the formulas have for it, empty for most
  /// results.
  struct Line {
    std::string heading;
    std::string symbol;
    std::string value;
    std::string unit;
  };

  /// A formula, the same with the numbers put in, and what they give.
  struct Step {
    std::string formula;
    std::string numbers;
    std::string result;
  };

  std::string mode;    ///< heat loss, or the control of condensation
  std::string object;  ///< the kind, and the product where one is chosen
  int picture = 0;     ///< the number of the object's picture
  std::vector<Line> inputs;
  std::vector<Line> results;  ///< as the main screen shows them
  std::vector<Step> steps;    ///< none where the fields hold nothing to calculate
};

/// Reports what the main screen shows.
/// @param module1 the shared state
/// @param warmt the main screen
/// @param wording texts of the current language
CalculationReport Report_Of(const Module1& module1, Warmt& warmt, const Wording& wording);

}  // namespace norvane
