#pragma once

#include <memory>
#include <string>

#include "spreadsheet/cell_range.h"

namespace norvane {

/// LibreOffice Calc as the plug-in offers it, one connection and one book. Texts are UTF-8. Every
/// call may take as long as the office likes; each throws `SpreadsheetFailure` when it can't be
/// done.
class Office {
 public:
  virtual ~Office() = default;

  /// Whether the user's office runs. Starts nothing.
  virtual bool Runs() = 0;
  /// Connects to the office that listens at a pipe. False when none does.
  virtual bool Connect(const std::string& pipe) = 0;
  /// Opens a binary workbook that exists, at first unseen.
  virtual void Open(const std::string& path) = 0;
  /// Shows the book's window in front of the others.
  virtual void Show() = 0;
  /// Brings up a sheet, counted from 1.
  virtual void Select(int sheet) = 0;
  /// Empties cells of the first sheet and keeps their formats.
  virtual void Clear(const CellRange& range) = 0;
  /// Writes cells of the first sheet; texts stay texts, an empty one makes an empty cell.
  virtual void Write(const CellBlock& block) = 0;
  virtual void Bold(const CellRange& range) = 0;
  /// Lets go of the office. A book that nobody has seen is closed.
  virtual void Leave() = 0;
};

/// The plug-in's one function; its name changes with the interface.
using MakeOffice = Office*();
inline constexpr const char* kMakeOffice = "norvane_make_office_1";

}  // namespace norvane
