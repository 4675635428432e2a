#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "study/object.h"
#include "study/result.h"

namespace norvane {

/// An exact sum of shown numbers that aren't negative, beyond 64 bits.
class ShownSum {
 public:
  void Add(std::int64_t shown);
  void Add(const ShownSum& other);
  /// As `Write_Shown` writes a count.
  /// @param decimals 0 to `kMostDecimals`
  /// @param decimal_separator the sign before the decimals
  std::string Text(int decimals, char decimal_separator) const;
  bool operator==(const ShownSum&) const = default;

 private:
  std::int64_t low_ = 0;  // below kBase
  std::int64_t high_ = 0;
};

/// What all rows of a schedule come to. The sums are those of the shown numbers, so that they agree
/// with the rows to the last digit.
struct ScheduleSums {
  std::int64_t rows = 0;
  std::int64_t without_saving = 0;
  std::int64_t without_result = 0;
  ShownSum gas;          ///< m3, as the column `gas_m3`
  ShownSum oil;          ///< litres
  ShownSum electricity;  ///< kWh

  void Add(const ShownHeatLoss& row);
  void Add_Without_Result();
  void Add(const ScheduleSums& other);
};

/// The heat loss of an object of a schedule, or why it has none.
using ScheduleRow = std::variant<ShownHeatLoss, Reason>;

struct ScheduleResult {
  std::vector<ScheduleRow> rows;  ///< one for each object, in their order
  ScheduleSums sums;
};

/// Pipes and sheets mixed, each for itself.
/// @param objects in the order of the rows
ScheduleResult Schedule(std::span<const Object> objects);

/// One object of it.
/// @param object a pipe or a sheet
ScheduleRow Schedule_Row(const Object& object);

}  // namespace norvane
