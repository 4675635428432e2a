#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/disk_files.h"
#include "platform/spreadsheet.h"
#include "spreadsheet/waiting.h"
#include "spreadsheet/workbook.h"

namespace norvane {

/// What stands for a spreadsheet program where none is installed: the cells are gathered and, at
/// the release, written to a new workbook in the user's temporary folder, which is handed to
/// `open`. The file that is asked to be opened has to be there, but its formats aren't taken over.
/// What writes the workbook is a plug-in beside the program, loaded at the first use: it and the
/// libraries that it brings along would cost every start more than the program's own code.
class XlsxSpreadsheet : public Spreadsheet {
 public:
  using OpenFile = std::function<void(const std::filesystem::path& file)>;

  XlsxSpreadsheet(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting,
                  OpenFile open);

  /// Whether the plug-in can be loaded.
  bool Is_There() const { return Writer() != nullptr; }

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
  struct Book {
    std::filesystem::path title;
    int charset = 0;
    Workbook cells;
  };

  WriteWorkbook* Writer() const;
  Book& Need_Book();

  DiskFiles files_;
  std::filesystem::path plug_in_;
  SpreadsheetWaiting& waiting_;
  OpenFile open_;
  std::optional<Book> book_;
};

}  // namespace norvane
