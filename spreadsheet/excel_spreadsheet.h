#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/disk_files.h"
#include "platform/spreadsheet.h"

namespace norvane {

/// Excel on Windows, asked by the names of its own object model.
class ExcelSpreadsheet : public Spreadsheet {
 public:
  explicit ExcelSpreadsheet(const std::filesystem::path& program_folder);
  ~ExcelSpreadsheet() override;

  static bool Is_Installed();

  bool GetObject() override;
  void CreateObject() override;
  void Set_Application_Visible() override;
  void Open(const std::string& name, int charset) override;
  void Set_Book_Visible() override;
  void Select(int sheet) override;
  void ClearContents(const std::string& range) override;
  void Value(const std::string& range, const std::vector<CellValue>& values) override;
  void Bold(const std::string& range) override;
  void Ask_To_Report() override;
  void Release() override;

 private:
  struct Objects;

  DiskFiles files_;
  std::unique_ptr<Objects> objects_;
  int charset_ = 0;
};

}  // namespace norvane
