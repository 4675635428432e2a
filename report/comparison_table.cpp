#include "report/comparison_table.h"

#include <algorithm>
#include <array>

#include "calc/limits.h"
#include "calc/shown_number.h"
#include "study/compare.h"

namespace norvane {
namespace {

using Table = ComparisonTable;

/// The results of a heat loss that have a column here.
struct ResultPlace {
  Table::Column column;
  std::size_t result;  ///< in `kHeatLossColumns`
};

constexpr std::array<ResultPlace, 6> kResults = {{{Table::kSurface, 2},
                                                  {Table::kHeatFlow, 4},
                                                  {Table::kSavingPercent, 5},
                                                  {Table::kGas, 7},
                                                  {Table::kOil, 8},
                                                  {Table::kElectricity, 9}}};
static_assert(kHeatLossColumns[2].name == "surface_C");
static_assert(kHeatLossColumns[4].name == "insulated_W_per_m_or_m2");
static_assert(kHeatLossColumns[5].name == "saving_percent");
static_assert(kHeatLossColumns[7].name == "gas_m3");

constexpr int kMoneyDecimals = 2;
constexpr int kYearDecimals = 1;

std::vector<std::string> Headings(std::int16_t kind, const Wording& wording) {
  const auto in = [&](TextId heading, const std::string& unit) {
    return wording(heading) + " (" + unit + ")";
  };
  std::vector<std::string> headings(Table::kColumns);
  headings[Table::kThickness] = in(TextId::kInsulationThickness, wording(TextId::kMillimetre));
  headings[Table::kSurface] = in(TextId::kSurfaceTemperature, wording(TextId::kCelsius));
  headings[Table::kHeatFlow] = in(TextId::kInsulatedHeatFlow, wording(Heat_Flow_Unit_Text(kind)));
  headings[Table::kSavingPercent] = in(TextId::kSaving, "%");
  headings[Table::kGas] = wording(TextId::kGasSum);
  headings[Table::kOil] = wording(TextId::kOilSum);
  headings[Table::kElectricity] = wording(TextId::kElectricitySum);
  headings[Table::kCost] = in(TextId::kInsulationCost, kind == kSheet ? "1 m\xC2\xB2" : "1 m");
  headings[Table::kMoney] = wording(TextId::kSavedPerYear);
  headings[Table::kPayback] = wording(TextId::kPaybackYears);
  headings[Table::kYearlyCost] = wording(TextId::kYearlyCost);
  return headings;
}

Table::Cell Shown_Cell(std::int64_t shown, int decimals, const Locale& locale) {
  std::array<char, kLongestShown> text{};
  char* const end = Write_Shown(text.data(), shown, decimals, locale.decimal_separator);
  constexpr std::array<double, kMostDecimals + 1> kUnits = {1, 10, 100, 1000};
  return {std::string(text.data(), end),
          static_cast<double>(shown) / kUnits[static_cast<std::size_t>(decimals)]};
}

/// An amount beyond all numbers that can be shown has an empty cell.
Table::Cell Amount_Cell(const std::optional<double>& amount, int decimals, const Locale& locale) {
  const auto shown = Shown_Amount(amount, decimals);
  return shown ? Shown_Cell(*shown, decimals, locale) : Table::Cell{};
}

void Fill_Results(const HeatLossResult& result, const Wording& wording, const Locale& locale,
                  Table::Row& row) {
  const ShownHeatLoss shown = Shown_Heat_Loss(result);
  for (const auto& [column, place] : kResults) {
    if (place >= kFirstSaving && !shown.saves) continue;
    row.cells[column] = Shown_Cell(shown.values[place], kHeatLossColumns[place].decimals, locale);
  }
  if (!shown.saves) row.cells[Table::kSavingPercent].text = wording(TextId::kNoSaving);
}

std::string Marks(const Table::Row& row, const Wording& wording) {
  std::string marks;
  if (row.present) marks = wording(TextId::kPresentThickness);
  if (row.economic) marks += (marks.empty() ? "" : ", ") + wording(TextId::kEconomic);
  return marks;
}

/// With the object's own thickness in its place.
std::vector<Insulation> Thicknesses(double own, const std::map<double, double>& costs) {
  std::vector<Insulation> choices = Choices_With_Costs(costs);
  const auto place = std::ranges::lower_bound(choices, own, {}, &Insulation::thickness_mm);
  const bool listed = place != choices.end() && place->thickness_mm == own;
  if (own >= 0 && own <= kMostThickness && !listed) choices.insert(place, {own, {}});
  return choices;
}

}  // namespace

ComparisonTable Comparison_Of(const Object& object, const Prices& prices, const Wording& wording,
                              const Locale& locale) {
  const auto& costs = prices.Costs_Of(object.kind);
  const CompareRequest request{object, Thicknesses(object.thickness_mm, costs), prices.Energy(),
                               prices.years};
  ComparisonTable table{Headings(object.kind, wording), {}};
  std::size_t place = 0;
  for (const Compared& compared : Compare(request)) {
    const Insulation& choice = request.choices[place++];
    Table::Row& row = table.rows.emplace_back();
    row.thickness_mm = compared.thickness_mm;
    row.present = compared.thickness_mm == object.thickness_mm;
    row.economic = compared.economic;
    row.cells.resize(Table::kColumns);
    row.cells[Table::kThickness] = {Format(compared.thickness_mm, locale), compared.thickness_mm};
    if (choice.cost) {
      row.cells[Table::kCost] = {Amount_Text(*choice.cost, locale.decimal_separator), choice.cost};
    }
    if (const auto* result = std::get_if<HeatLossResult>(&compared.result)) {
      Fill_Results(*result, wording, locale, row);
    }
    row.cells[Table::kMoney] = Amount_Cell(compared.money_per_year, kMoneyDecimals, locale);
    row.cells[Table::kPayback] = Amount_Cell(compared.payback_years, kYearDecimals, locale);
    row.cells[Table::kYearlyCost] = Amount_Cell(compared.yearly_cost, kMoneyDecimals, locale);
    row.cells[Table::kMarks].text = Marks(row, wording);
  }
  return table;
}

std::string As_Text(const ComparisonTable& table) {
  std::string text;
  const auto add = [&text](const std::string& cell, std::size_t place) {
    if (place > 0) text += '\t';
    text += cell;
  };
  for (std::size_t i = 0; i < table.headings.size(); ++i) add(table.headings[i], i);
  text += '\n';
  for (const Table::Row& row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) add(row.cells[i].text, i);
    text += '\n';
  }
  return text;
}

}  // namespace norvane
