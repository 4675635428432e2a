#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/object_reader.h"
#include "study/schedule.h"
#include "study/schedule_file.h"

namespace norvane {

/// A row of a schedule: its fields as the file has them, which may be fewer than the header's or
/// more, and those of the columns that the file doesn't have, none while all of them are empty.
struct ScheduleLine {
  std::vector<std::string> fields;
  std::vector<std::string> added;

  bool operator==(const ScheduleLine&) const = default;
};

/// The rows of a schedule with all columns that an object has, each row with its result or its
/// reason why not. First come the columns of the file in their order, those of other names too,
/// then the ones that it doesn't have.
class ScheduleTable {
 public:
  /// @param file with a header that has all required columns
  explicit ScheduleTable(ScheduleFile file);

  std::size_t Rows() const { return lines_.size(); }
  std::size_t Columns() const { return names_.size(); }
  /// The sign before the decimals, in the file and so in all fields.
  char Decimal() const { return dialect_.decimal; }

  /// The name of a column as the file has it.
  const std::string& Name_Of(std::size_t column) const { return names_[column]; }
  /// What the column is to an object; null for one of another name.
  const Column* Meaning_Of(std::size_t column) const { return reader_.Column_Of(column); }

  const ScheduleLine& Line(std::size_t row) const { return lines_[row]; }
  const std::string& Text(std::size_t row, std::size_t column) const;
  const ScheduleRow& Result(std::size_t row) const { return results_[row]; }
  /// Of all rows; they agree with the rows to the last digit.
  ScheduleSums Sums() const;

  /// A line with another text in one column.
  ScheduleLine With_Text(ScheduleLine line, std::size_t column, const std::string& text) const;
  /// A line without a text.
  ScheduleLine Empty_Line() const;

  /// Puts `lines` into the place of `count` rows from `first` on, and gives back what stood there.
  std::vector<ScheduleLine> Replace(std::size_t first, std::size_t count,
                                    std::vector<ScheduleLine> lines);

  /// As it is kept in a file: columns that the file didn't have are there when a row has a text in
  /// one.
  ScheduleFile File() const;

 private:
  ScheduleRow Result_Of(const ScheduleLine& line) const;
  std::vector<bool> Added_In_Use() const;

  CsvDialect dialect_;
  std::vector<std::string> names_;
  std::size_t of_file_;  // columns
  ObjectReader reader_;
  std::vector<ScheduleLine> lines_;
  std::vector<ScheduleRow> results_;
};

}  // namespace norvane
