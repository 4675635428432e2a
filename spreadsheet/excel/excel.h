#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/spreadsheet.h"
#include "spreadsheet/excel/apartment.h"
#include "spreadsheet/excel/members.h"

namespace norvane {

/// Excel as its published object model offers it, one application and one book, each call a fixed
/// chain of members. Made, used and thrown away on one thread, since a call may take as long as
/// Excel likes; texts are UTF-8. What can't be done throws `SpreadsheetFailure`.
class Excel {
 public:
  using Rows = std::vector<std::vector<CellValue>>;

  explicit Excel(std::chrono::milliseconds patience);
  ~Excel();
  Excel(const Excel&) = delete;
  Excel& operator=(const Excel&) = delete;

  static bool Is_Installed();
  /// Sends the message by which Excel's main window, where there is one, has it report itself as
  /// running.
  static void Ask_To_Report();

  /// Attaches to the one that runs. False when none does.
  bool Attach();
  void Start();
  void Show();
  /// Opens a workbook in the application.
  void Open(const std::filesystem::path& path);
  /// Opens a workbook by its file alone, in whatever application it belongs to.
  void Open_By_File(const std::filesystem::path& path);
  void Show_Book();
  void Select(int sheet);
  void Clear(const std::string& range);
  void Write(const std::string& range, const CellValue& value);
  /// Rows of the same length.
  void Write(const std::string& range, const Rows& rows);
  void Bold(const std::string& range);

 private:
  Variant Range(const std::string& range) const;

  Apartment apartment_;
  Members members_;
  Variant application_;
  Variant book_;
  bool by_file_ = false;
};

}  // namespace norvane
