#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/disk_files.h"
#include "platform/spreadsheet.h"
#include "spreadsheet/cell_range.h"
#include "spreadsheet/waiting.h"

namespace norvane {

/// What stands for a spreadsheet program where none is installed: the cells are gathered and, at
/// the release, written to a new workbook in the user's temporary folder, which is handed to
/// `open`. The file that is asked to be opened has to be there, but its formats aren't taken over.
class XlsxSpreadsheet : public Spreadsheet {
 public:
  using OpenFile = std::function<void(const std::filesystem::path& file)>;

  XlsxSpreadsheet(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting,
                  OpenFile open);

  /// There is no program that could be running already.
  bool GetObject() override { return false; }
  void CreateObject() override {}
  void Set_Application_Visible() override {}
  void Open(const std::string& name, int charset) override;
  void Set_Book_Visible() override;
  void Select(int sheet) override;
  void ClearContents(const std::string& range) override;
  void Value(const std::string& range, const std::vector<CellValue>& values) override;
  void Bold(const std::string& range) override;
  void Ask_To_Report() override {}
  void Release() override;

 private:
  using Row = std::vector<std::optional<CellValue>>;

  /// What is to be written. Rows and columns from 0, texts in UTF-8.
  struct Book {
    std::string title;
    int charset = 0;
    std::map<int, Row> rows;
    std::vector<CellRange> bold;
  };
  class Writer;

  Book& Need_Book();

  DiskFiles files_;
  SpreadsheetWaiting& waiting_;
  OpenFile open_;
  std::optional<Book> book_;
};

}  // namespace norvane
