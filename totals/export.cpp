#include <algorithm>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "data/text.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

constexpr const char* kLastClearedRow = "500";
constexpr int kLinesBelowCaptions = 2;

/// Carries out one step; a failing one is passed over without a word.
template <class Step>
void Try(const Step& step) {
  try {
    step();
  } catch (const SpreadsheetFailure&) {
    // The spreadsheet program can't do it.
  } catch (const RuntimeError&) {
    // A value isn't what the step needs.
  }
}

/// The letter of a column counted from 0; beyond "Z" comes whatever letter is next.
char Column(int column) { return static_cast<char>('A' + column); }

std::string Cell(int column, int row) { return Column(column) + std::to_string(row); }

/// One row of cells from column A on.
std::string Row_Range(int last_column, int row) {
  return Cell(0, row) + ":" + Cell(last_column, row);
}

std::vector<CellValue> Cells(const std::vector<std::string>& texts) {
  return {texts.begin(), texts.end()};
}

bool Is_Workbook(Module1& module1, const std::string& strFile) {
  const std::size_t extension = strFile.size() - std::min<std::size_t>(strFile.size(), 3);
  return Lower(strFile.substr(extension)) == "xls" &&
         !module1.platform.files().List(strFile).empty();
}

void Write_Captions(Spreadsheet& sheet, const std::vector<std::string>& captions) {
  const int last = static_cast<int>(captions.size()) - 1;
  Try([&] { sheet.ClearContents("A1:" + std::string(1, Column(last)) + kLastClearedRow); });
  Try([&] { sheet.Set_Application_Visible(); });
  Try([&] { sheet.Value(Row_Range(last, 1), Cells(captions)); });
  Try([&] { sheet.Bold(Row_Range(last, 1)); });
}

void Write_Sums(Spreadsheet& sheet, const Module1& module1, int last_column, int row) {
  const CellValue values[] = {module1.Text(TextId::kTotal), module1.Total_Sum1, module1.Total_Sum2,
                              module1.Total_Sum3};
  int column = last_column - 3;
  for (const CellValue& value : values) {
    Try([&] { sheet.Value(Cell(column, row), {value}); });
    ++column;
  }
}

/// `Connected` tells whether the workbook was open already, which no failure comes behind today.
void Tell_Failure(Module1& module1, bool Connected) {
  module1.Message(Connected ? "Excel connection lost" : "No Excel connection",
                  Connected ? "Error: exporting data" : "Excel 97/2000 not found",
                  MessageIcon::kExclamation, MessageButtons::kOk);
}

}  // namespace

void Total::Xls_Export(const std::string& strFile) {
  Spreadsheet& sheet = module1_.platform.spreadsheet();
  bool attached = false;
  Try([&] { attached = sheet.GetObject(); });
  if (!attached) Try([&] { sheet.CreateObject(); });
  Try([&] { sheet.Set_Application_Visible(); });

  if (!Is_Workbook(module1_, strFile)) {
    Set_MousePointer(MousePointer::kDefault);
    sheet.Release();
    Tell_Failure(module1_, false);
    return;
  }
  Try([&] { sheet.Open(strFile, module1_.Text_Charset()); });
  Try([&] { sheet.Set_Book_Visible(); });
  Try([&] { sheet.Select(1); });
  const auto& list = module1_.Calc_List;
  std::vector<std::string> Fields = Split(list.empty() ? "" : list[0], '~');
  Write_Captions(sheet, Fields);
  int row = kLinesBelowCaptions + 1;
  for (std::size_t i = 1; i + 1 < list.size(); ++i) {
    Fields = Split(list[i], '\t');
    const int last = static_cast<int>(Fields.size()) - 1;
    Try([&] { sheet.Value(Row_Range(last, row), Cells(Fields)); });
    ++row;
  }
  Write_Sums(sheet, module1_, static_cast<int>(Fields.size()) - 1, row + 1);
  Set_MousePointer(MousePointer::kDefault);
  sheet.Release();
}

void Total::DetectExcel() { module1_.platform.spreadsheet().Ask_To_Report(); }

}  // namespace norvane
