#include "spreadsheet/excel/excel.h"
// The system's headers come first: what they define, the others have to undo.
#include <utility>

#include "spreadsheet/cell_range.h"
#include "spreadsheet/excel_spreadsheet.h"

namespace norvane {

/// What the thread holds. Excel is made and thrown away there.
struct ExcelSpreadsheet::Work {
  std::unique_ptr<Excel> excel;
};

ExcelSpreadsheet::ExcelSpreadsheet(const std::filesystem::path& program_folder,
                                   SpreadsheetWaiting& waiting, std::chrono::milliseconds patience)
    : files_(program_folder),
      waiting_(waiting),
      patience_(patience),
      rows_(
          waiting, [this](const CellBlock& block) { Write_Block(block); },
          [this] { return thread_ == nullptr || thread_->Lost(); }) {}

ExcelSpreadsheet::~ExcelSpreadsheet() = default;

/// Carries out a step on the thread of Excel. Excel is asked again for longer than anybody waits
/// for the step, so that a step that is given up is never one that is still to come.
template <class Step>
auto ExcelSpreadsheet::Run(Step step) -> decltype(step(std::declval<Excel&>())) {
  if (thread_ == nullptr) {
    work_ = std::make_shared<Work>();
    thread_ = std::make_unique<PatientThread>(waiting_, patience_);
  }
  return thread_->Run([work = work_, step = std::move(step), patience = 2 * patience_] {
    if (work->excel == nullptr) work->excel = std::make_unique<Excel>(patience);
    return step(*work->excel);
  });
}

bool ExcelSpreadsheet::Is_Installed() { return Excel::Is_Installed(); }

bool ExcelSpreadsheet::GetObject() {
  application_asked_for_ = true;
  return Run([](Excel& excel) { return excel.Attach(); });
}

void ExcelSpreadsheet::CreateObject() {
  application_asked_for_ = true;
  Run([](Excel& excel) { excel.Start(); });
}

void ExcelSpreadsheet::Set_Application_Visible() {
  Run([](Excel& excel) { excel.Show(); });
}

void ExcelSpreadsheet::Open(const std::string& name, int charset) {
  const auto path = std::filesystem::absolute(files_.Path_Of(name)).make_preferred();
  charset_ = charset;
  if (application_asked_for_) {
    Run([path](Excel& excel) { excel.Open(path); });
  } else {
    Run([path](Excel& excel) { excel.Open_By_File(path); });
  }
}

void ExcelSpreadsheet::Set_Book_Visible() {
  Run([](Excel& excel) { excel.Show_Book(); });
}

void ExcelSpreadsheet::Select(int sheet) {
  Run([sheet](Excel& excel) { excel.Select(sheet); });
}

void ExcelSpreadsheet::ClearContents(const std::string& range) {
  rows_.Flush();
  Run([range](Excel& excel) { excel.Clear(range); });
}

void ExcelSpreadsheet::Value(const std::string& range, const std::vector<CellValue>& values) {
  std::vector<CellValue> utf8 = In_Utf8(values, charset_);
  // Not for a range, but for a single cell, a value by itself.
  if (range.find(':') == std::string::npos && values.size() == 1) {
    rows_.Flush();
    Run([range, value = utf8.front()](Excel& excel) { excel.Write(range, value); });
    return;
  }
  rows_.Add(Read_Row(range, values), std::move(utf8));
}

void ExcelSpreadsheet::Write_Block(const CellBlock& block) {
  const int columns = static_cast<int>(block.rows.front().size());
  const int rows = static_cast<int>(block.rows.size());
  const std::string range =
      Range_Text({block.first_column, block.first_row, block.first_column + columns - 1,
                  block.first_row + rows - 1});
  Run([range, cells = block.rows](Excel& excel) { excel.Write(range, cells); });
}

void ExcelSpreadsheet::Bold(const std::string& range) {
  rows_.Flush();
  Run([range](Excel& excel) { excel.Bold(range); });
}

void ExcelSpreadsheet::Ask_To_Report() {
  // Excel may hang; a thread that nobody else uses can be left to wait for it.
  try {
    PatientThread(waiting_, patience_).Run([] { Excel::Ask_To_Report(); });
  } catch (const SpreadsheetFailure&) {
    // Nobody reads the answer.
  }
}

void ExcelSpreadsheet::Release() {
  if (thread_ == nullptr) return;
  rows_.Flush();
  try {
    thread_->Run([work = work_] { work->excel.reset(); });
  } catch (const SpreadsheetFailure&) {
    // It hangs, and is left to itself.
  }
  rows_.End();
  thread_.reset();
  work_.reset();
  application_asked_for_ = false;
}

}  // namespace norvane
