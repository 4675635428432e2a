#pragma once

namespace norvane {

struct Module1;

/// Writes the dew-point table into the first sheet of the workbook "xls\Empty.xls" of the program's
/// folder: the table in A1:P24, the row numbers in column Q, the column numbers in row 25. The book
/// stays open, unsaved. Throws `RuntimeError` 429 when the spreadsheet program can't do a step.
void DauwPunt_export(Module1& module1);

}  // namespace norvane
