#include "report/comparison_export.h"

#include "frame/shared_state.h"
#include "host/code_page.h"
#include "totals/total_form.h"
#include "totals/workbook.h"

namespace norvane {
namespace {

CellValue Value_Of(const ComparisonTable::Cell& cell, int charset) {
  if (cell.number) return *cell.number;
  return From_Utf8(cell.text, charset);
}

}  // namespace

void Export_Comparison(Module1& module1, const ComparisonTable& table) {
  Spreadsheet& sheet = module1.platform.spreadsheet();
  if (!Open_Workbook(module1, kTotalWorkbook)) {
    sheet.Release();
    Tell_Failure(module1, false);
    return;
  }
  const int charset = module1.Text_Charset();
  std::vector<std::string> captions;
  for (const std::string& heading : table.headings) {
    captions.push_back(From_Utf8(heading, charset));
  }
  Write_Captions(sheet, captions);
  int number = 1;
  for (const ComparisonTable::Row& row : table.rows) {
    std::vector<CellValue> cells;
    for (const ComparisonTable::Cell& cell : row.cells) cells.push_back(Value_Of(cell, charset));
    Write_Row(sheet, ++number, cells);
  }
  sheet.Release();
}

}  // namespace norvane
