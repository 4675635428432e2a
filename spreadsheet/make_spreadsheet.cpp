#include "spreadsheet/make_spreadsheet.h"

#include "spreadsheet/chosen_spreadsheet.h"
#ifdef NORVANE_WITH_EXCEL
#include "spreadsheet/excel_spreadsheet.h"
#endif
#ifdef NORVANE_WITH_OFFICE
#include "spreadsheet/office_plug_in.h"
#include "spreadsheet/office_spreadsheet.h"
#endif
#ifdef NORVANE_WITH_XLSX
#include "spreadsheet/open_on_desktop.h"
#include "spreadsheet/xlsx_spreadsheet.h"
#endif

namespace norvane {
namespace {

using Candidate = ChosenSpreadsheet::Candidate;

#ifdef NORVANE_WITH_OFFICE
Candidate LibreOffice(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting) {
  const auto plug_in = std::make_shared<OfficePlugIn>(program_folder);
  OfficeMeans means;
  means.make_office = [plug_in] { return plug_in->Make_Office(); };
  means.call = [](const std::vector<std::string>& arguments) {
    const auto program = Find_Office();
    if (!program) throw SpreadsheetFailure();
    return Start_Program(*program, arguments);
  };
  return {[plug_in] { return Find_Office() && plug_in->Load(); },
          std::make_unique<OfficeSpreadsheet>(program_folder, waiting, std::move(means))};
}
#endif

#ifdef NORVANE_WITH_XLSX
Candidate Workbook_File(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting) {
  auto file = std::make_unique<XlsxSpreadsheet>(program_folder, waiting, Open_On_Desktop);
  return {[plain = file.get()] { return plain->Is_There(); }, std::move(file)};
}
#endif

}  // namespace

std::unique_ptr<Spreadsheet> Make_Spreadsheet(
    [[maybe_unused]] const std::filesystem::path& program_folder,
    [[maybe_unused]] SpreadsheetWaiting& waiting) {
  std::vector<Candidate> candidates;
#ifdef NORVANE_WITH_OFFICE
  candidates.push_back(LibreOffice(program_folder, waiting));
#endif
#ifdef NORVANE_WITH_EXCEL
  candidates.push_back({ExcelSpreadsheet::Is_Installed,
                        std::make_unique<ExcelSpreadsheet>(program_folder, waiting)});
#endif
#ifdef NORVANE_WITH_XLSX
  candidates.push_back(Workbook_File(program_folder, waiting));
#endif
  return std::make_unique<ChosenSpreadsheet>(std::move(candidates));
}

}  // namespace norvane
