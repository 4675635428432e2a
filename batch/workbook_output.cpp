#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "batch/output.h"
#include "batch/problem.h"
#include "data/utf8.h"
#include "host/program_folder.h"
#include "host/unfinished_file.h"
#include "spreadsheet/plug_in.h"
#include "spreadsheet/workbook.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr int kMostRows = 1048576;
constexpr std::size_t kMostColumns = 16384;

/// Beside the program, or where an installation has it.
WriteWorkbook* Find_Writer() {
  const fs::path folder = Program_Folder();
  for (const fs::path& place : {folder, folder.parent_path() / "lib" / "norvane"}) {
    void* const function = Function_Of_Plug_In(place / "norvane_workbook.so", kWriteWorkbook);
    if (function != nullptr) return reinterpret_cast<WriteWorkbook*>(function);
  }
  throw BatchProblem("norvane_workbook.so, which writes workbooks, isn't beside the program");
}

/// Takes the rows of the CSV writer apart again: a workbook is held in memory as a whole, so that
/// its rows needn't be fast.
class WorkbookOutput : public Output {
 public:
  WorkbookOutput(const Options& options, const Job& job)
      : write_(Find_Writer()),
        file_(options.output),
        dialect_(job.Dialect()),
        header_(options.write_header) {
    for (const std::size_t i : job.Kept()) {
      const Column* const column = job.Reader().Column_Of(i);
      number_.push_back(column != nullptr && column->number != nullptr);
    }
    number_.insert(number_.end(), job.Results().Columns().size(), true);
    number_.push_back(false);
    if (number_.size() > kMostColumns)
      throw BatchProblem("a workbook has no more than 16384 columns");
    if (header_) book_.bold.push_back({0, 0, static_cast<int>(number_.size()) - 1, 0});
  }

  void Write(std::string_view rows) override {
    while (!rows.empty()) {
      const std::size_t length = Length_Of_Row(rows, dialect_.separator);
      Add(rows.substr(0, length - 1));
      rows.remove_prefix(length);
    }
  }

  void Finish() override {
    if (!write_(book_, file_.Beside())) throw BatchProblem("the workbook couldn't be written");
    file_.Commit();
  }

  fs::path Unfinished() const override { return file_.Beside(); }

 private:
  void Add(std::string_view row) {
    if (count_ == kMostRows) throw BatchProblem("a workbook has no more than 1048576 rows");
    Split_Row(row, dialect_.separator, fields_);
    Workbook::Row& cells = book_.rows[count_];
    for (std::size_t i = 0; i < fields_.size(); ++i) {
      std::optional<CellValue>& cell = cells.emplace_back();
      double number = 0;
      if (number_[i] && Read_Number(fields_[i], dialect_.decimal, number)) {
        cell = number;
      } else if (std::string text = Field_Text(fields_[i]); !text.empty()) {
        cell = std::move(text);
      }
    }
    ++count_;
  }

  WriteWorkbook* write_;
  UnfinishedFile file_;
  CsvDialect dialect_;
  bool header_;
  std::vector<bool> number_;  // by column
  std::vector<std::string_view> fields_;
  Workbook book_;
  int count_ = 0;
};

}  // namespace

std::unique_ptr<Output> Make_Workbook_Output(const Options& options, const Job& job) {
  return std::make_unique<WorkbookOutput>(options, job);
}

}  // namespace norvane
