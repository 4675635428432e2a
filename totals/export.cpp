#include "data/text.h"
#include "frame/shared_state.h"
#include "totals/total_form.h"
#include "totals/workbook.h"

namespace norvane {
namespace {

constexpr int kLinesBelowCaptions = 2;

void Write_Sums(Spreadsheet& sheet, const Module1& module1, int last_column, int row) {
  const CellValue values[] = {module1.Text(TextId::kTotal), module1.Total_Sum1, module1.Total_Sum2,
                              module1.Total_Sum3};
  int column = last_column - 3;
  for (const CellValue& value : values) {
    Write_Cell(sheet, column, row, value);
    ++column;
  }
}

}  // namespace

void Total::Xls_Export(const std::string& strFile) {
  Spreadsheet& sheet = module1_.platform.spreadsheet();
  if (!Open_Workbook(module1_, strFile)) {
    Set_MousePointer(MousePointer::kDefault);
    sheet.Release();
    Tell_Failure(module1_, false);
    return;
  }
  const auto& list = module1_.Calc_List;
  std::vector<std::string> Fields = Split(list.empty() ? "" : list[0], '~');
  Write_Captions(sheet, Fields);
  int row = kLinesBelowCaptions + 1;
  for (std::size_t i = 1; i + 1 < list.size(); ++i) {
    Fields = Split(list[i], '\t');
    Write_Row(sheet, row, {Fields.begin(), Fields.end()});
    ++row;
  }
  Write_Sums(sheet, module1_, static_cast<int>(Fields.size()) - 1, row + 1);
  Set_MousePointer(MousePointer::kDefault);
  sheet.Release();
}

void Total::DetectExcel() { module1_.platform.spreadsheet().Ask_To_Report(); }

}  // namespace norvane
