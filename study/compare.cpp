#include "study/compare.h"

#include <algorithm>

#include "calc/shown_number.h"
#include "calc/sizes.h"
#include "data/runtime_error.h"

namespace norvane {
namespace {

double Price_Of(const Fuels& fuels, const EnergyPrice& energy) {
  switch (energy.fuel) {
    case Fuel::kGas:
      return fuels.gas * energy.per_unit;
    case Fuel::kOil:
      return fuels.oil * energy.per_unit;
    case Fuel::kElectricity:
      break;
  }
  return static_cast<double>(fuels.electricity) * energy.per_unit;
}

Fuels Saved_Fuels(const Savings& savings) {
  return {savings.gas, savings.oil, savings.electricity};
}

void Value(const CompareRequest& request, const Insulation& choice, const HeatFlowInput& input,
           const HeatLossResult& result, Compared& row) {
  if (!request.energy) return;
  if (result.savings) row.money_per_year = Price_Of(Saved_Fuels(*result.savings), *request.energy);
  if (!choice.cost) return;
  const double insulation = *choice.cost * input.Mtrs;
  if (row.money_per_year && *row.money_per_year > 0) {
    row.payback_years = insulation / *row.money_per_year;
  }
  row.yearly_cost =
      Price_Of(Fuels_For(result.Q_ins, input), *request.energy) + insulation / request.years;
}

void Mark_Economic(std::vector<Compared>& rows) {
  Compared* best = nullptr;
  for (Compared& row : rows) {
    if (!row.yearly_cost) continue;
    const bool cheaper = best == nullptr || *row.yearly_cost < *best->yearly_cost;
    const bool thinner = best != nullptr && *row.yearly_cost == *best->yearly_cost &&
                         row.thickness_mm < best->thickness_mm;
    if (cheaper || thinner) best = &row;
  }
  if (best != nullptr) best->economic = true;
}

}  // namespace

std::vector<Insulation> Usual_Choices() {
  std::vector<Insulation> choices;
  for (const std::int16_t step : Thick_Steps()) choices.push_back({static_cast<double>(step), {}});
  constexpr int kStep = 10;
  for (int mm = Thick_Steps().back() + kStep; mm <= kMostThickness; mm += kStep) {
    choices.push_back({static_cast<double>(mm), {}});
  }
  return choices;
}

std::optional<std::int64_t> Shown_Amount(const std::optional<double>& amount, int decimals) {
  if (!amount) return std::nullopt;
  try {
    return Shown(*amount, decimals);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::vector<Compared> Compare(const CompareRequest& request) {
  std::vector<Compared> rows;
  rows.reserve(request.choices.size());
  Object object = request.object;
  for (const Insulation& choice : request.choices) {
    object.thickness_mm = choice.thickness_mm;
    Compared& row =
        rows.emplace_back(Compared{choice.thickness_mm, Heat_Loss_Of(object), {}, {}, {}});
    if (const auto* result = std::get_if<HeatLossResult>(&row.result)) {
      Value(request, choice, Flow_Input(object), *result, row);
    }
  }
  Mark_Economic(rows);
  return rows;
}

}  // namespace norvane
