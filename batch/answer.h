#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "batch/options.h"
#include "study/object.h"
#include "study/result.h"
#include "study/schedule.h"

namespace norvane {

/// The value of a result column in a row.
struct Cell {
  enum Kind : std::uint8_t { kEmpty, kShown, kNumber, kText };

  Kind kind = kEmpty;
  std::int64_t shown = 0;  ///< in units of the column's last decimal
  double number = 0;       ///< as it is
  std::string text;
};

/// What the program adds to a row of the input.
struct ResultRow {
  std::vector<Cell> cells;  ///< by result column
  std::string remark;       ///< "no saving", the reason of a row without a result, or nothing
  bool failed = false;
};

/// What is calculated for each object. One for all threads: its procedures change nothing in it.
class Answer {
 public:
  virtual ~Answer() = default;

  virtual std::span<const ResultColumn> Columns() const = 0;
  /// Writes the results over those of `rows`, whose cells are kept to be used again, and adds them
  /// to the sums.
  virtual void Rows(const Object& object, std::vector<ResultRow>& rows,
                    ScheduleSums& sums) const = 0;
};

/// Throws `BatchProblem` for a file of prices that can't be used.
std::unique_ptr<Answer> Make_Answer(const Options& options);

/// A row without results.
void Set_Reason(const Reason& reason, std::size_t columns, std::vector<ResultRow>& rows);

}  // namespace norvane
