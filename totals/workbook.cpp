#include "totals/workbook.h"

#include <algorithm>

#include "data/runtime_error.h"
#include "data/text.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

constexpr const char* kLastClearedRow = "500";

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
std::string Row_Range(std::size_t cells, int row) {
  return Cell(0, row) + ":" + Cell(static_cast<int>(cells) - 1, row);
}

bool Is_Workbook(Module1& module1, const std::string& strFile) {
  const std::size_t extension = strFile.size() - std::min<std::size_t>(strFile.size(), 3);
  return Lower(strFile.substr(extension)) == "xls" &&
         !module1.platform.files().List(strFile).empty();
}

}  // namespace

bool Open_Workbook(Module1& module1, const std::string& strFile) {
  Spreadsheet& sheet = module1.platform.spreadsheet();
  bool attached = false;
  Try([&] { attached = sheet.GetObject(); });
  if (!attached) Try([&] { sheet.CreateObject(); });
  Try([&] { sheet.Set_Application_Visible(); });
  if (!Is_Workbook(module1, strFile)) return false;
  Try([&] { sheet.Open(strFile, module1.Text_Charset()); });
  Try([&] { sheet.Set_Book_Visible(); });
  Try([&] { sheet.Select(1); });
  return true;
}

void Write_Captions(Spreadsheet& sheet, const std::vector<std::string>& captions) {
  const std::string cells = Row_Range(captions.size(), 1);
  const std::string cleared =
      Cell(0, 1) + ":" + Column(static_cast<int>(captions.size()) - 1) + kLastClearedRow;
  Try([&] { sheet.ClearContents(cleared); });
  Try([&] { sheet.Set_Application_Visible(); });
  Try([&] { sheet.Value(cells, {captions.begin(), captions.end()}); });
  Try([&] { sheet.Bold(cells); });
}

void Write_Row(Spreadsheet& sheet, int row, const std::vector<CellValue>& cells) {
  Try([&] { sheet.Value(Row_Range(cells.size(), row), cells); });
}

void Write_Cell(Spreadsheet& sheet, int column, int row, const CellValue& value) {
  Try([&] { sheet.Value(Cell(column, row), {value}); });
}

void Tell_Failure(Module1& module1, bool Connected) {
  module1.Message(Connected ? "Excel connection lost" : "No Excel connection",
                  Connected ? "Error: exporting data" : "Excel 97/2000 not found",
                  MessageIcon::kExclamation, MessageButtons::kOk);
}

}  // namespace norvane
