#pragma once

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "driver/headless_platform.h"
#include "frame/program.h"
#include "screen/warmt.h"
#include "test_folder.h"
#include "test_waiting.h"
#include "totals/total_form.h"
#include "user_office.h"

namespace norvane {

/// The program with a real spreadsheet, and otherwise without a display. Its folder holds the
/// workbooks, the plug-in, and a language file whose text n is "t" and the number.
class OfficeProgram {
 public:
  /// Makes the spreadsheet for the program's folder; the one of this machine if left out.
  using MakeSpreadsheetHere =
      std::function<std::unique_ptr<Spreadsheet>(const std::filesystem::path& folder)>;
  enum class PlugIn { kThere, kMissing };

  explicit OfficeProgram(PlugIn plug_in = PlugIn::kThere, const MakeSpreadsheetHere& make = {},
                         const std::string& language_file = {});

  Module1& State() { return program_->State(); }
  Warmt& Main_Screen() { return *State().forms.warmt; }
  Total& Total_Screen() { return *State().forms.total; }
  Program& program() { return *program_; }
  Spreadsheet& spreadsheet() { return *platform_->spreadsheet_; }

  void Click(Field& field);
  /// Saves the calculation on the screen, of a pipe or a sheet of this thickness.
  void Add_Pipe(const std::string& thickness);
  void Add_Sheet(const std::string& thickness);
  /// Fills the list with copies of a pipe's line.
  void Fill_List(int lines);
  /// Opens the Total screen and presses its button.
  void Export();

  /// Every cell that the sheet has to hold for the list and the sums as they stand.
  std::vector<SeenCell> Expected_Cells();

  /// What the program printed since the last call.
  std::string Printed();

  TestFolder folder;
  TestWaiting waiting;

 private:
  class OfficePlatform : public HeadlessPlatform {
   public:
    using HeadlessPlatform::HeadlessPlatform;
    Spreadsheet& spreadsheet() override { return *spreadsheet_; }

    std::unique_ptr<Spreadsheet> spreadsheet_;
  };

  std::ostringstream out_;
  std::unique_ptr<OfficePlatform> platform_;
  std::unique_ptr<Program> program_;
};

}  // namespace norvane
