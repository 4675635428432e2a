// Saved lines, captions and a word for the sums of any bytes: they go to the spreadsheet program in
// the order and the ranges that they belong to.
//
// Input: the text of the current language that names the sums, the header line, the saved lines,
// with a record separator between them.

#include <algorithm>
#include <sstream>

#include "data/runtime_error.h"
#include "input.h"
#include "require.h"
#include "run_program.h"
#include "spreadsheet/cell_range.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

/// Takes down what was written, as a spreadsheet program would understand it.
class CheckedSpreadsheet : public RecordingSpreadsheet {
 public:
  using RecordingSpreadsheet::RecordingSpreadsheet;

  void Value(const std::string& range, const std::vector<CellValue>& values) override {
    RecordingSpreadsheet::Value(range, values);
    ++writes;
    constexpr std::size_t kColumns = 26;
    try {
      last_row = Read_Row(range, values).first_row;
    } catch (const SpreadsheetFailure&) {
      beyond = true;
      norvane::Require(values.empty() || values.size() > kColumns || values.size() == 1,
                       "a row of at most 26 cells is written where it belongs: " + range);
    }
    // The cells reach the workbook as they are, in UTF-8.
    In_Utf8(values, 0);
  }

  void Release() override {
    RecordingSpreadsheet::Release();
    ++releases;
  }

  std::size_t writes = 0;
  int last_row = 0;
  bool beyond = false;  ///< a range that is none was passed over
  int releases = 0;
};

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  constexpr std::size_t kMostLines = 200;
  static RunningProgram run('.');
  static const bool started = [] {
    run.platform.folder.Write("language.len", Numbered_Language_File());
    run.platform.folder.Write(kTotalWorkbook, "");
    run.Start();
    return true;
  }();
  Require(started && !run.Ended(), "the program runs");

  std::ostringstream printed;
  CheckedSpreadsheet sheet(run.platform.folder, printed);
  sheet.Set_Present(true);
  run.platform.sheet = &sheet;

  Module1& module1 = run.State();
  auto lines = Input(data, size).Parts(kBetweenFiles);
  lines.resize(std::clamp(lines.size(), std::size_t{2}, kMostLines));
  module1.languages.Lang_Text[0][static_cast<std::size_t>(TextId::kTotal)] = lines.front();
  lines.erase(lines.begin());
  module1.Calc_List = lines;
  module1.Calc_List.emplace_back();

  Total total(module1);
  try {
    total.Load();
  } catch (const RuntimeError& error) {
    Require(error.number() == RuntimeError::kTypeMismatch ||
                error.number() == RuntimeError::kOverflow ||
                error.number() == RuntimeError::kSubscriptOutOfRange,
            "a sum of cells that are no numbers");
  }
  total.Xls_Export(kTotalWorkbook);
  constexpr std::size_t kSums = 4;
  Require(sheet.writes == lines.size() + kSums, "the header, each line and the sums are written");
  Require(sheet.beyond || sheet.last_row == static_cast<int>(lines.size()) + 2,
          "the sums stand two rows below the lines");
  Require(sheet.releases == 1, "the spreadsheet program is let go");
  run.platform.sheet = &run.platform.recorder;
  return 0;
}
