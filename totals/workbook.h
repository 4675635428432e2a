#pragma once

#include <string>
#include <vector>

#include "platform/spreadsheet.h"

namespace norvane {

struct Module1;

/// Brings a workbook of the program's folder into the spreadsheet program, its first sheet in
/// front. A step that fails is passed over. False, with nothing opened, when there is no workbook
/// of that name; the spreadsheet program has to be released in either case.
bool Open_Workbook(Module1& module1, const std::string& strFile);

/// Empties the columns of the captions and writes these into row 1, bold.
void Write_Captions(Spreadsheet& sheet, const std::vector<std::string>& captions);

/// Writes the cells of a row from column A on, unless that fails.
void Write_Row(Spreadsheet& sheet, int row, const std::vector<CellValue>& cells);

/// Writes one cell, unless that fails; columns count from 0.
void Write_Cell(Spreadsheet& sheet, int column, int row, const CellValue& value);

/// Tells the user that an export failed. `Connected` tells whether the workbook was open already,
/// which no failure comes behind today.
void Tell_Failure(Module1& module1, bool Connected);

}  // namespace norvane
