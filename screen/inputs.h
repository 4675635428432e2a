#pragma once

#include <optional>
#include <vector>

#include "calc/condensation.h"
#include "calc/heat_loss.h"

namespace norvane {

struct Module1;
class Warmt;

// What stands in the fields of the main screen, as the calculations take it. The fields are read
// anew each time.

HeatLossInput Heat_Loss_Input(const Module1& module1, Warmt& warmt);
CondensInput Condensation_Input(const Module1& module1, Warmt& warmt);

// What the results that show were calculated of, which is the same with the alpha in effect: the
// field that carries alpha holds it rounded. Nothing where a field holds what can't be calculated.

/// Nothing in condensation.
std::optional<HeatFlowInput> Heat_Loss_On_Screen(const Module1& module1, Warmt& warmt);

/// The object, the air around it, and the coefficient that the results are for.
struct CondensationOnScreen {
  CondensInput input;
  float Alpha = 0;  ///< W/m2K

  bool operator==(const CondensationOnScreen&) const = default;
};

/// Nothing in heat loss, nor while the results are blank.
std::optional<CondensationOnScreen> Condensation_On_Screen(const Module1& module1, Warmt& warmt);

/// The relative humidities, in per cent, that the dew points are known for; ascending.
std::vector<double> Known_Humidities(const Warmt& warmt);

}  // namespace norvane
