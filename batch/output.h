#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "batch/job.h"

namespace norvane {

/// Where the rows go. Each of its procedures throws `BatchProblem` when it can't be done.
class Output {
 public:
  virtual ~Output() = default;
  /// Whole rows, as the format's writer writes them.
  virtual void Write(std::string_view rows) = 0;
  /// Behind the last row. Without it nothing is left under the name of the output.
  virtual void Finish() = 0;
  /// The file that lies beside its place until then, if there is one.
  virtual std::filesystem::path Unfinished() const { return {}; }
};

std::unique_ptr<Output> Make_Output(const Options& options, const Job& job);

/// A workbook of one sheet. Its rows are held in memory until the end.
std::unique_ptr<Output> Make_Workbook_Output(const Options& options, const Job& job);

}  // namespace norvane
