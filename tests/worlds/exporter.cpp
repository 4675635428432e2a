// The program without a display, exporting two lines to a workbook file:
//   exporter FOLDER
// It prints where the file lies, when there is one, and how many lines are saved afterwards.

#include <exception>
#include <iostream>
#include <memory>

#include "driver/headless_platform.h"
#include "frame/about_form.h"
#include "frame/program.h"
#include "screen/warmt.h"
#include "spreadsheet/waiting.h"
#include "spreadsheet/xlsx_spreadsheet.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

class Nobody : public SpreadsheetWaiting {
 public:
  void Wait_A_Moment() override {}
  void Progress(int, int) override {}
};

class Machine : public HeadlessPlatform {
 public:
  explicit Machine(const std::filesystem::path& folder)
      : HeadlessPlatform(folder, '.', std::cout),
        spreadsheet_(folder, nobody_,
                     [](const auto& file) { std::cout << "opened " << file.string() << '\n'; }) {}
  Spreadsheet& spreadsheet() override { return spreadsheet_; }

 private:
  Nobody nobody_;
  XlsxSpreadsheet spreadsheet_;
};

void Click(Program& program, Field& field) {
  program.Dispatch({UserAction::kClick, field.form(), &field});
}

constexpr int kRuntimeError = 3;

/// The exit status.
int Export(const std::filesystem::path& folder) {
  Machine machine(folder);
  Program program(machine);
  machine.play_modal = [](Form& form) { form.Hide(); };
  program.Main();
  for (int i = 0; i < 3 && !program.Ended(); ++i) program.Tick(program.State().forms.about->Timer1);
  if (program.Failed()) return kRuntimeError;
  Warmt& warmt = *program.State().forms.warmt;
  Click(program, warmt.cmdAdd);
  Click(program, warmt.cmdAdd);
  Click(program, warmt.picTotal);
  if (!program.Ended()) Click(program, program.State().forms.total->Toolbar1);
  std::cout << "lines " << program.State().Calc_List.size() - 2 << '\n';
  return program.Failed() ? kRuntimeError : 0;
}

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  try {
    return norvane::Export(argv[1]);
  } catch (const std::exception& problem) {
    std::cout << "error: " << problem.what() << '\n';
    return 1;
  }
}
