#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "batch/answer.h"
#include "batch/job.h"

namespace norvane {

/// A row of the input.
struct InputRow {
  std::string_view bytes;                    ///< without the line end
  std::span<const std::string_view> fields;  ///< as many as the header has
  bool sound = true;  ///< UTF-8, with all quotes closed, and `fields` are all of `bytes`
};

/// Writes rows with their results in a format. One for all threads.
class RowWriter {
 public:
  virtual ~RowWriter() = default;
  virtual void Header(std::string& out) const = 0;
  virtual void Row(const InputRow& input, const ResultRow& result, std::string& out) const = 0;
};

/// Appends the shortest text that reads back as the number.
void Append_Number(double number, char decimal_separator, std::string& out);

/// CSV in the dialect of the input.
std::unique_ptr<RowWriter> Make_Csv_Writer(const Job& job);
/// A JSON object a line. Numbers are numbers, empty fields and results are left out.
std::unique_ptr<RowWriter> Make_Json_Writer(const Job& job);

}  // namespace norvane
