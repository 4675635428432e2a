#include "batch/answer.h"

#include <algorithm>
#include <array>
#include <map>

#include "batch/problem.h"
#include "calc/shown_number.h"
#include "calc/sizes.h"
#include "host/plain_file.h"
#include "study/prices.h"

namespace norvane {
namespace {

constexpr const char* kNoSaving = "no saving";

/// The first row of as many as are needed, with room for its cells.
ResultRow& Fresh_Row(std::vector<ResultRow>& rows, std::size_t at, std::size_t columns) {
  if (rows.size() <= at) rows.resize(at + 1);
  ResultRow& row = rows[at];
  row.cells.resize(columns);
  for (Cell& cell : row.cells) cell.kind = Cell::kEmpty;
  row.remark.clear();
  row.failed = false;
  return row;
}

void Set_Shown(Cell& cell, std::int64_t shown) {
  cell.kind = Cell::kShown;
  cell.shown = shown;
}

/// From `first` on, the results of a heat loss.
void Set_Heat_Loss(const ShownHeatLoss& shown, std::size_t first, ResultRow& row) {
  const std::size_t count = shown.saves ? shown.values.size() : kFirstSaving;
  for (std::size_t i = 0; i < count; ++i) Set_Shown(row.cells[first + i], shown.values[i]);
  if (!shown.saves) row.remark = kNoSaving;
}

void Fail(const Reason& reason, ResultRow& row) {
  row.remark = Words(reason);
  row.failed = true;
}

class HeatLossAnswer : public Answer {
 public:
  std::span<const ResultColumn> Columns() const override { return kHeatLossColumns; }

  void Rows(const Object& object, std::vector<ResultRow>& rows, ScheduleSums& sums) const override {
    rows.resize(1);
    ResultRow& row = Fresh_Row(rows, 0, kHeatLossColumns.size());
    const ScheduleRow result = Schedule_Row(object);
    if (const auto* shown = std::get_if<ShownHeatLoss>(&result)) {
      Set_Heat_Loss(*shown, 0, row);
      sums.Add(*shown);
    } else {
      Fail(std::get<Reason>(result), row);
      sums.Add_Without_Result();
    }
  }
};

class CondensationAnswer : public Answer {
 public:
  CondensationAnswer() {
    std::copy(kCondensationColumns.begin(), kCondensationColumns.end(), columns_.begin());
    columns_.back() = {"least_thickness_inch", 0,
                       "the inch size of the thickness, where it has one"};
  }

  std::span<const ResultColumn> Columns() const override { return columns_; }

  void Rows(const Object& object, std::vector<ResultRow>& rows, ScheduleSums& sums) const override {
    rows.resize(1);
    ResultRow& row = Fresh_Row(rows, 0, columns_.size());
    const auto result = Condensation_Of(object);
    if (const auto* reason = std::get_if<Reason>(&result)) {
      Fail(*reason, row);
      sums.Add_Without_Result();
      return;
    }
    const auto& condensation = std::get<CondensResult>(result);
    const auto shown = Shown_Condensation(condensation);
    for (std::size_t i = 0; i < shown.size(); ++i) Set_Shown(row.cells[i], shown[i]);
    row.cells.back().text = InchIso(To_Int16(condensation.d_mm), object.kind);
    // The screen hides a nought.
    const bool hidden = row.cells.back().text == "0" || row.cells.back().text.empty();
    row.cells.back().kind = hidden ? Cell::kEmpty : Cell::kText;
    ++sums.rows;
  }

 private:
  std::array<ResultColumn, kCondensationColumns.size() + 1> columns_{};
};

Prices Prices_In(const std::string& path) {
  const auto bytes = Bytes_Of(path);
  if (!bytes) throw BatchProblem(path + ": the prices can't be read");
  Prices prices = Read_Prices(*bytes);
  if (!prices.Energy() && prices.of_pipe.empty() && prices.of_sheet.empty()) {
    throw BatchProblem(path + ": there is no price in it");
  }
  return prices;
}

/// The thicknesses that are asked for, or else all that there are. One that has no cost there has
/// that of the prices.
std::vector<Insulation> Choices(const Options& options, const std::map<double, double>& costs) {
  if (options.choices.empty()) return Choices_With_Costs(costs);
  std::vector<Insulation> choices = options.choices;
  for (Insulation& choice : choices) {
    const auto known = costs.find(choice.thickness_mm);
    if (!choice.cost && known != costs.end()) choice.cost = known->second;
  }
  return choices;
}

class CompareAnswer : public Answer {
 public:
  explicit CompareAnswer(const Options& options) {
    const Prices prices = options.prices.empty() ? Prices() : Prices_In(options.prices);
    request_.energy = options.energy ? options.energy : prices.Energy();
    request_.years = options.years.value_or(prices.years);
    for_pipes_ = Choices(options, prices.of_pipe);
    for_sheets_ = Choices(options, prices.of_sheet);
    columns_.push_back({"thickness_mm", 0, "the thickness that is compared"});
    columns_.insert(columns_.end(), kHeatLossColumns.begin(), kHeatLossColumns.end());
    columns_.push_back({"money_per_year", 2, "saved, by the price of the energy"});
    columns_.push_back({"payback_years", 1, "until the savings have paid the insulation"});
    columns_.push_back({"yearly_cost", 2, "of the heat that still flows and of the insulation"});
    columns_.push_back({"economic", 0, "yes for the least yearly cost of the object"});
  }

  std::span<const ResultColumn> Columns() const override { return columns_; }

  void Rows(const Object& object, std::vector<ResultRow>& rows, ScheduleSums& sums) const override {
    CompareRequest request = request_;
    request.object = object;
    request.choices = object.kind == kSheet ? for_sheets_ : for_pipes_;
    const std::vector<Compared> compared = Compare(request);
    rows.resize(compared.size());
    for (std::size_t i = 0; i < compared.size(); ++i) {
      Set_Row(compared[i], Fresh_Row(rows, i, columns_.size()));
    }
    const auto failed = [](const ResultRow& row) { return row.failed; };
    sums.rows += 1;
    sums.without_result += std::any_of(rows.begin(), rows.end(), failed) ? 1 : 0;
  }

 private:
  enum Place : std::size_t { kMoney = 11, kPayback = 12, kCost = 13, kEconomic = 14 };

  void Set_Row(const Compared& compared, ResultRow& row) const {
    row.cells.front().kind = Cell::kNumber;
    row.cells.front().number = compared.thickness_mm;
    if (const auto* reason = std::get_if<Reason>(&compared.result)) {
      Fail(*reason, row);
      return;
    }
    Set_Heat_Loss(Shown_Heat_Loss(std::get<HeatLossResult>(compared.result)), 1, row);
    Set_Money(compared.money_per_year, kMoney, row);
    Set_Money(compared.payback_years, kPayback, row);
    Set_Money(compared.yearly_cost, kCost, row);
    if (!compared.economic) return;
    row.cells[kEconomic].kind = Cell::kText;
    row.cells[kEconomic].text = "yes";
  }

  void Set_Money(const std::optional<double>& amount, Place place, ResultRow& row) const {
    const auto shown = Shown_Amount(amount, columns_[place].decimals);
    if (shown) Set_Shown(row.cells[place], *shown);
  }

  CompareRequest request_;  // without an object and its choices
  std::vector<Insulation> for_pipes_;
  std::vector<Insulation> for_sheets_;
  std::vector<ResultColumn> columns_;
};

}  // namespace

std::unique_ptr<Answer> Make_Answer(const Options& options) {
  switch (options.mode) {
    case Mode::kHeatLoss:
      return std::make_unique<HeatLossAnswer>();
    case Mode::kCompare:
      return std::make_unique<CompareAnswer>(options);
    case Mode::kCondensation:
      break;
  }
  return std::make_unique<CondensationAnswer>();
}

void Set_Reason(const Reason& reason, std::size_t columns, std::vector<ResultRow>& rows) {
  rows.resize(1);
  Fail(reason, Fresh_Row(rows, 0, columns));
}

}  // namespace norvane
