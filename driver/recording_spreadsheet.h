#pragma once

#include <iosfwd>

#include "platform/files.h"
#include "platform/spreadsheet.h"

namespace norvane {

/// A spreadsheet program that prints every operation asked of it, or one that isn't there.
class RecordingSpreadsheet : public Spreadsheet {
 public:
  RecordingSpreadsheet(const Files& files, std::ostream& out) : files_(files), out_(out) {}

  void Set_Present(bool present) { present_ = present; }

  bool GetObject() override;
  void CreateObject() override;
  void Set_Application_Visible() override;
  void Open(const std::string& name, int charset) override;
  void Set_Book_Visible() override;
  void Select(int sheet) override;
  void ClearContents(const std::string& range) override;
  void Value(const std::string& range, const std::vector<CellValue>& values) override;
  void Bold(const std::string& range) override;
  void Ask_To_Report() override {}
  void Release() override { open_ = false; }

 private:
  void Require(bool condition) const;
  std::string Printed(const CellValue& value) const;

  const Files& files_;
  std::ostream& out_;
  bool present_ = false;
  bool running_ = false;
  bool open_ = false;
  int charset_ = 0;
};

}  // namespace norvane
