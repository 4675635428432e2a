#include "totals/dew_point_export.h"

#include <string>

#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

constexpr int kRows = 24;
constexpr int kColumns = 16;

std::string Table_Cell(int column, int row) {
  return std::string(1, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"[column - 1]) + std::to_string(row);
}

void Write_Table(Spreadsheet& sheet, const Dew_Table& table) {
  for (int i = 1; i <= kRows; ++i) {
    for (int j = 1; j <= kColumns; ++j) {
      sheet.Value(Table_Cell(j, i), {static_cast<double>(table(i, j))});
    }
    sheet.Value(Table_Cell(kColumns + 1, i), {static_cast<double>(i)});
  }
  for (int j = 1; j <= kColumns; ++j) {
    sheet.Value(Table_Cell(j, kRows + 1), {static_cast<double>(j)});
  }
}

}  // namespace

void DauwPunt_export(Module1& module1) {
  // Nobody sets the pointer back.
  module1.forms.total->Set_MousePointer(MousePointer::kHourglass);
  Spreadsheet& sheet = module1.platform.spreadsheet();
  try {
    sheet.Open("xls\\Empty.xls", 0);
    sheet.Set_Application_Visible();
    sheet.Set_Book_Visible();
    sheet.Select(1);
    Write_Table(sheet, module1.forms.warmt->Dew_Table);
  } catch (const SpreadsheetFailure&) {
    throw RuntimeError(RuntimeError::kCannotCreateObject);
  }
  sheet.Release();
}

}  // namespace norvane
