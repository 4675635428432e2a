// Rows of any bytes through norvane-batch: each row of the input comes out once, whole and in
// UTF-8, the same in one block as in several.
//
// Input: which mode and format; the header and the rows behind it.

#include <algorithm>
#include <sstream>

#include "batch/job.h"
#include "batch/problem.h"
#include "batch/row_writer.h"
#include "batch/rows.h"
#include "data/utf8.h"
#include "input.h"
#include "require.h"

namespace norvane {
namespace {

std::string Calculated(const Job& job, const std::string& rows, Report& report) {
  const auto writer =
      job.Format() == OutputFormat::kJsonLines ? Make_Json_Writer(job) : Make_Csv_Writer(job);
  std::string out;
  report = Rows(job, *writer).Calculate({rows, 1, 0}, out);
  return out;
}

/// Behind the first row that ends in the middle of the rows, 0 when none does.
std::size_t Cut(const std::string& rows, char separator) {
  const std::size_t length = Length_Of_Row(rows, separator);
  return length == std::string::npos ? 0 : length;
}

void Check_Csv(const Job& job, std::string_view out) {
  const std::size_t fields = job.Kept().size() + job.Results().Columns().size() + 1;
  std::vector<std::string_view> split;
  while (!out.empty()) {
    const std::size_t length = Length_Of_Row(out, job.Dialect().separator);
    Require(length != std::string_view::npos, "a row ends");
    Split_Row(out.substr(0, length - 1), job.Dialect().separator, split);
    Require(split.size() == fields, "each row has all columns");
    out.remove_prefix(length);
  }
}

void Check(const Options& options, const std::string& header, const std::string& rows) {
  const Job job(options, header, 1);
  Report report;
  const std::string out = Calculated(job, rows, report);
  Require(Is_Utf8(out), "results are UTF-8");
  if (job.Format() == OutputFormat::kCsv) Check_Csv(job, out);
  if (job.Format() == OutputFormat::kJsonLines && options.mode != Mode::kCompare) {
    Require(std::count(out.begin(), out.end(), '\n') == report.sums.rows, "a line for each row");
  }

  const std::size_t cut = Cut(rows, job.Dialect().separator);
  Report first, second;
  const std::string parts =
      Calculated(job, rows.substr(0, cut), first) + Calculated(job, rows.substr(cut), second);
  Require(parts == out, "parts give the rows of the whole");
  first.Add(second);
  Require(first.sums.gas == report.sums.gas && first.sums.rows == report.sums.rows, "and its sums");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  constexpr Mode kModes[] = {Mode::kHeatLoss, Mode::kCompare, Mode::kCondensation};
  Input input(data, size);
  Options options;
  options.mode = kModes[input.Below(3)];
  if (input.Below(2) == 1) options.format = OutputFormat::kJsonLines;
  const std::string bytes = input.Bytes(size);
  const std::size_t end = bytes.find('\n');
  if (end == std::string::npos) return 0;
  try {
    Check(options, bytes.substr(0, end), bytes.substr(end + 1));
  } catch (const BatchProblem&) {
    // A header that can't be used.
  }
  return 0;
}
