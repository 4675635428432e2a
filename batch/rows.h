#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "batch/job.h"
#include "batch/row_writer.h"
#include "batch/rows_input.h"
#include "study/schedule.h"

namespace norvane {

/// What is told of the rows at the end.
struct Report {
  ScheduleSums sums;
  std::size_t first_bad_line = 0;  ///< 0 for none

  /// Adds the report of rows that come behind.
  void Add(const Report& behind);
};

/// Turns rows of the input into rows of the output. One a thread.
class Rows {
 public:
  Rows(const Job& job, const RowWriter& writer) : job_(job), writer_(writer) {}

  /// The rows of `block`, appended to `out`.
  Report Calculate(const Block& block, std::string& out);

 private:
  void One_Row(std::string_view row, std::size_t line, Report& report, std::string& out);
  /// Why the row can't be read at all, or its object.
  std::optional<Reason> Read(std::string_view row, Object& object);

  const Job& job_;
  const RowWriter& writer_;
  std::vector<std::string_view> fields_;
  std::vector<ResultRow> results_;
};

}  // namespace norvane
