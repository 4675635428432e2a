#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "batch/answer.h"
#include "batch/options.h"
#include "data/csv.h"
#include "study/object_reader.h"

namespace norvane {

/// What all rows of a run have in common. Nothing of it changes after it was made, so that all
/// threads share it.
class Job {
 public:
  /// Throws `BatchProblem` for a header, of the line that is named, that can't be used.
  Job(const Options& options, const std::string& header, std::size_t line);

  const CsvDialect& Dialect() const { return dialect_; }
  const ObjectReader& Reader() const { return *reader_; }
  const Answer& Results() const { return *answer_; }
  OutputFormat Format() const { return format_; }

  /// The names of the input's columns.
  const std::vector<std::string>& Names() const { return names_; }
  /// Which of the input's columns are written again: not those that have the name of a result,
  /// which come from a run before.
  const std::vector<std::size_t>& Kept() const { return kept_; }
  bool Keeps_All() const { return kept_.size() == names_.size(); }
  /// The input's columns that are no columns of a schedule, by a comma.
  std::string Unread() const;

 private:
  OutputFormat format_;
  CsvDialect dialect_;
  std::unique_ptr<Answer> answer_;
  std::unique_ptr<ObjectReader> reader_;
  std::vector<std::string> names_;
  std::vector<std::size_t> kept_;
};

}  // namespace norvane
