#include "spreadsheet/office_spreadsheet.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "host/random_digits.h"
#include "spreadsheet/unreachable.h"

namespace norvane {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::milliseconds kBetweenTries{50};
constexpr std::chrono::milliseconds kBetweenCalls{300};
constexpr std::chrono::seconds kForHandedOver{10};  // after the call was taken
constexpr int kCalls = 3;

}  // namespace

OfficeSpreadsheet::OfficeSpreadsheet(const std::filesystem::path& program_folder,
                                     SpreadsheetWaiting& waiting, OfficeMeans means)
    : files_(program_folder),
      waiting_(waiting),
      means_(std::move(means)),
      rows_(
          waiting, [this](const CellBlock& block) { Write(block); },
          [this] { return thread_->Lost(); }) {}

/// Carries out a step on the thread of the office, whose calls may block.
template <class Step>
auto OfficeSpreadsheet::Run(Step step) -> decltype(step(std::declval<Office&>())) {
  if (thread_ == nullptr) {
    office_ = means_.make_office();
    thread_ = std::make_unique<PatientThread>(waiting_, means_.patience);
  }
  return thread_->Run([office = office_, step = std::move(step)] { return step(*office); });
}

template <class Step>
void OfficeSpreadsheet::Run_On_Book(Step step) {
  if (book_ == Book::kNone) throw SpreadsheetFailure();
  Run(std::move(step));
}

bool OfficeSpreadsheet::Connect() {
  reached_ = Run([pipe = pipe_](Office& office) { return office.Connect(pipe); });
  return reached_;
}

/// Carries out a step without which there is no office at all.
template <class Step>
auto OfficeSpreadsheet::Reach(const Step& step) {
  try {
    return step();
  } catch (const SpreadsheetFailure&) {
    // Who doesn't answer now may do so when nobody expects it any more.
    if (program_ != nullptr) program_->End();
    throw SpreadsheetUnreachable();
  }
}

bool OfficeSpreadsheet::Reach_Running() {
  return Reach([this] {
    if (reached_ || (!pipe_.empty() && Connect())) return true;
    if (!Run([](Office& office) { return office.Runs(); })) return false;
    Reach_By_Call();
    return true;
  });
}

/// One call serves both: an office that runs is handed the pipe to listen at, and where none runs
/// the called program becomes it. An office that is just ending may take the call and never answer,
/// so there is more than one; a program that fails, or comes to nothing, isn't called again.
void OfficeSpreadsheet::Reach_By_Call() {
  if (std::exchange(called_, true)) throw SpreadsheetFailure();
  const auto end = steady_clock::now() + means_.patience;
  for (int i = 0; i < kCalls; ++i) {
    if (Answers_Call(end)) return;
    if (program_->Exit_Status() != 0) break;
    thread_->Pause(kBetweenCalls);
  }
  throw SpreadsheetFailure();
}

bool OfficeSpreadsheet::Answers_Call(steady_clock::time_point end) {
  pipe_ = "norvane-" + Random_Digits();
  program_ = means_.call(
      {"--accept=pipe,name=" + pipe_ + ";urp;", "--nodefault", "--norestore", "--nologo"});
  auto given_up = end;
  while (!Connect()) {
    const auto now = steady_clock::now();
    const auto status = program_->Exit_Status();
    if (status.value_or(0) != 0) return false;
    if (status) given_up = std::min(given_up, now + kForHandedOver);
    if (now >= given_up) return false;
    thread_->Pause(kBetweenTries);
  }
  return true;
}

bool OfficeSpreadsheet::GetObject() { return Reach_Running(); }

void OfficeSpreadsheet::CreateObject() {
  if (reached_) return;
  Reach([this] { Reach_By_Call(); });
  created_ = true;
}

void OfficeSpreadsheet::Show() {
  Run_On_Book([](Office& office) { office.Show(); });
  book_ = Book::kShown;
}

void OfficeSpreadsheet::Set_Application_Visible() {
  if (!reached_) throw SpreadsheetFailure();
  // Without a book there is no window to show yet.
  if (book_ != Book::kNone) Show();
}

void OfficeSpreadsheet::Open(const std::string& name, int charset) {
  const auto path = std::filesystem::absolute(files_.Path_Of(name));
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) throw SpreadsheetFailure();
  if (!Reach_Running()) CreateObject();
  charset_ = charset;
  try {
    Run([path = path.string()](Office& office) { office.Open(path); });
  } catch (const SpreadsheetFailure&) {
    if (!thread_->Lost()) throw;
    if (created_) program_->End();
    throw SpreadsheetUnreachable();
  }
  book_ = Book::kUnseen;
}

void OfficeSpreadsheet::Set_Book_Visible() { Show(); }

void OfficeSpreadsheet::Select(int sheet) {
  Run_On_Book([sheet](Office& office) { office.Select(sheet); });
}

void OfficeSpreadsheet::ClearContents(const std::string& range) {
  rows_.Flush();
  Run_On_Book([cells = Read_Range(range)](Office& office) { office.Clear(cells); });
}

void OfficeSpreadsheet::Value(const std::string& range, const std::vector<CellValue>& values) {
  if (book_ == Book::kNone) throw SpreadsheetFailure();
  const CellRange row = Read_Row(range, values);
  if (row.Columns() == 1) {
    rows_.Flush();
    Write({row.first_column, row.first_row, {In_Utf8(values, charset_)}});
    return;
  }
  rows_.Add(row, In_Utf8(values, charset_));
}

void OfficeSpreadsheet::Bold(const std::string& range) {
  rows_.Flush();
  Run_On_Book([cells = Read_Range(range)](Office& office) { office.Bold(cells); });
}

void OfficeSpreadsheet::Write(CellBlock block) {
  Run([block = std::move(block)](Office& office) { office.Write(block); });
}

void OfficeSpreadsheet::Leave() {
  rows_.Flush();
  // An office that was started and has no book to show would be there unseen.
  if (created_ && book_ == Book::kNone && !thread_->Lost()) means_.call({});
  Run([](Office& office) { office.Leave(); });
}

void OfficeSpreadsheet::Release() {
  if (thread_ == nullptr) return;
  try {
    Leave();
  } catch (const SpreadsheetFailure&) {
    // There is nothing left to let go of.
  }
  rows_.End();
  thread_.reset();
  office_.reset();
  reached_ = false;
  called_ = false;
  created_ = false;
  program_.reset();
  book_ = Book::kNone;
}

}  // namespace norvane
