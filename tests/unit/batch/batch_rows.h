#pragma once

#include <string>
#include <vector>

#include "batch/job.h"
#include "batch/row_writer.h"
#include "batch/rows.h"

namespace norvane {

/// The output of rows under a header, without a header of its own.
inline std::string Calculated(const Options& options, const std::string& header,
                              const std::string& rows, Report* report = nullptr) {
  const Job job(options, header, 1);
  const auto writer =
      job.Format() == OutputFormat::kJsonLines ? Make_Json_Writer(job) : Make_Csv_Writer(job);
  std::string out;
  const Report of_rows = Rows(job, *writer).Calculate({rows, 2, 0}, out);
  if (report != nullptr) *report = of_rows;
  return out;
}

}  // namespace norvane
