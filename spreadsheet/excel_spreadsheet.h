#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/disk_files.h"
#include "platform/spreadsheet.h"
#include "spreadsheet/block_writer.h"
#include "spreadsheet/patient_thread.h"

namespace norvane {

class Excel;

/// Excel on Windows, on a thread of its own: it may be busy, or ask the user something. Rows that
/// are written one below the other go over as one range of several rows; all else is one operation
/// each. A workbook that is opened without an application having been asked for is opened by its
/// file.
class ExcelSpreadsheet : public Spreadsheet {
 public:
  ExcelSpreadsheet(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting,
                   std::chrono::milliseconds patience = std::chrono::seconds(60));
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
  struct Work;

  template <class Step>
  auto Run(Step step) -> decltype(step(std::declval<Excel&>()));
  void Write_Block(const CellBlock& block);

  DiskFiles files_;
  SpreadsheetWaiting& waiting_;
  std::chrono::milliseconds patience_;

  // From the first operation to the release:
  std::shared_ptr<Work> work_;
  std::unique_ptr<PatientThread> thread_;
  bool application_asked_for_ = false;
  int charset_ = 0;
  BlockWriter rows_;
};

}  // namespace norvane
