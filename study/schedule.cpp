#include "study/schedule.h"

#include <array>

#include "calc/shown_number.h"
#include "data/runtime_error.h"

namespace norvane {
namespace {

constexpr std::int64_t kBase = 1'000'000'000'000'000'000;
constexpr std::size_t kDigitsOfBase = 18;

enum SumColumn : std::size_t { kGas = 7, kOil = 8, kElectricity = 9 };
static_assert(kHeatLossColumns[kGas].name == "gas_m3");
static_assert(kHeatLossColumns[kElectricity].name == "electricity_kWh");

}  // namespace

void ShownSum::Add(std::int64_t shown) {
  high_ += shown / kBase;
  low_ += shown % kBase;
  if (low_ < kBase) return;
  low_ -= kBase;
  ++high_;
}

void ShownSum::Add(const ShownSum& other) {
  Add(other.low_);
  high_ += other.high_;
}

std::string ShownSum::Text(int decimals, char decimal_separator) const {
  std::array<char, kLongestShown> text;
  const std::string low(text.data(), Write_Shown(text.data(), low_, decimals, decimal_separator));
  if (high_ == 0) return low;
  const std::size_t signs = decimals > 0 ? 1 : 0;
  return std::to_string(high_) + std::string(kDigitsOfBase + signs - low.size(), '0') + low;
}

void ScheduleSums::Add(const ShownHeatLoss& row) {
  ++rows;
  if (!row.saves) {
    ++without_saving;
    return;
  }
  gas.Add(row.values[kGas]);
  oil.Add(row.values[kOil]);
  electricity.Add(row.values[kElectricity]);
}

void ScheduleSums::Add_Without_Result() {
  ++rows;
  ++without_result;
}

void ScheduleSums::Add(const ScheduleSums& other) {
  rows += other.rows;
  without_saving += other.without_saving;
  without_result += other.without_result;
  gas.Add(other.gas);
  oil.Add(other.oil);
  electricity.Add(other.electricity);
}

ScheduleRow Schedule_Row(const Object& object) {
  const auto result = Heat_Loss_Of(object);
  if (const auto* reason = std::get_if<Reason>(&result)) return *reason;
  return Shown_Heat_Loss(std::get<HeatLossResult>(result));
}

ScheduleResult Schedule(std::span<const Object> objects) {
  ScheduleResult schedule;
  schedule.rows.reserve(objects.size());
  for (const Object& object : objects) {
    const ScheduleRow& row = schedule.rows.emplace_back(Schedule_Row(object));
    if (const auto* shown = std::get_if<ShownHeatLoss>(&row)) {
      schedule.sums.Add(*shown);
    } else {
      schedule.sums.Add_Without_Result();
    }
  }
  return schedule;
}

}  // namespace norvane
