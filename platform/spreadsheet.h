#pragma once

#include <exception>
#include <string>
#include <variant>
#include <vector>

namespace norvane {

/// An operation that the spreadsheet program couldn't carry out.
class SpreadsheetFailure : public std::exception {
 public:
  const char* what() const noexcept override { return "spreadsheet failure"; }
};

/// A cell's value: a text as it stands, in the code page of the current language, or a number.
using CellValue = std::variant<std::string, double>;

/// A spreadsheet program, asked by the names of its operations. `Application` works on the program
/// that `GetObject` or `CreateObject` has reached, the others on the book that was opened last and
/// on its first sheet. Each throws `SpreadsheetFailure` when it can't be done.
class Spreadsheet {
 public:
  virtual ~Spreadsheet() = default;

  /// Attaches to the running program. False when none runs.
  virtual bool GetObject() = 0;
  /// Starts the program.
  virtual void CreateObject() = 0;
  virtual void Set_Application_Visible() = 0;
  /// Opens the file `name` of the program's folder, in the program that was reached, or else in the
  /// running one or a new one. Texts come in the Windows character set
  /// `charset` from here on.
  /// @param name of a workbook of the program's folder
  /// @param charset Windows character set of the texts
  virtual void Open(const std::string& name, int charset) = 0;
  virtual void Set_Book_Visible() = 0;
  virtual void Select(int sheet) = 0;
  virtual void ClearContents(const std::string& range) = 0;
  /// Writes the values from left to right into the cells of a range of one row.
  /// @param range such as "A3:C3"
  /// @param values one for each cell
  virtual void Value(const std::string& range, const std::vector<CellValue>& values) = 0;
  virtual void Bold(const std::string& range) = 0;
  /// Asks the program, when its main window stands on the display, to report itself as running.
  virtual void Ask_To_Report() = 0;
  /// Lets go of book and program, which stay as they are, for the user.
  virtual void Release() = 0;
};

}  // namespace norvane
