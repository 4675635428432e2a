#include "batch/job.h"

#include <algorithm>

#include "batch/problem.h"
#include "data/utf8.h"

namespace norvane {
namespace {

CsvDialect Dialect_For(const Options& options, const std::string& header) {
  CsvDialect dialect = Dialect_Of_Header(header);
  if (options.separator) {
    dialect.separator = *options.separator;
    dialect.decimal = dialect.separator == ';' ? ',' : '.';
  }
  if (options.decimal) dialect.decimal = *options.decimal;
  return dialect;
}

}  // namespace

Job::Job(const Options& options, const std::string& header, std::size_t line)
    : format_(Format_Of(options)),
      dialect_(Dialect_For(options, header)),
      answer_(Make_Answer(options)) {
  if (!Is_Utf8(header)) throw BatchProblem(line, "the header isn't UTF-8");
  if (dialect_.decimal == dialect_.separator) {
    throw BatchProblem("the comma can't be both the decimal sign and between the columns");
  }
  std::vector<std::string_view> fields;
  Split_Row(header, dialect_.separator, fields);
  reader_ = std::make_unique<ObjectReader>(fields, dialect_.decimal, Question_Of(options.mode));
  if (const std::string words = reader_->Problem(); !words.empty()) throw BatchProblem(line, words);
  const auto results = answer_->Columns();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string& name = names_.emplace_back(Field_Text(fields[i]));
    const bool result = name == kRemarkColumn || std::any_of(results.begin(), results.end(),
                                                             [&](const ResultColumn& column) {
                                                               return column.name == name;
                                                             });
    if (!result) kept_.push_back(i);
  }
}

std::string Job::Unread() const {
  std::string names;
  for (const std::size_t i : kept_) {
    const auto& unknown = reader_->Unknown();
    if (std::find(unknown.begin(), unknown.end(), names_[i]) == unknown.end()) continue;
    names += (names.empty() ? "" : ", ") + names_[i];
  }
  return names;
}

}  // namespace norvane
