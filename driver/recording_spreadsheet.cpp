#include "driver/recording_spreadsheet.h"

#include <ostream>

#include "calc/conversions.h"
#include "driver/text.h"

namespace norvane {

void RecordingSpreadsheet::Require(bool condition) const {
  if (!condition) throw SpreadsheetFailure();
}

bool RecordingSpreadsheet::GetObject() {
  Require(present_);
  out_ << "spreadsheet GetObject\n";
  return running_;
}

void RecordingSpreadsheet::CreateObject() {
  Require(present_);
  out_ << "spreadsheet CreateObject\n";
  running_ = true;
}

void RecordingSpreadsheet::Set_Application_Visible() {
  Require(running_);
  out_ << "spreadsheet Application.Visible true\n";
}

void RecordingSpreadsheet::Open(const std::string& name, int charset) {
  Require(present_);
  out_ << "spreadsheet Open " << Escape(name) << '\n';
  Require(!files_.List(name).empty());
  running_ = true;
  open_ = true;
  charset_ = charset;
}

void RecordingSpreadsheet::Set_Book_Visible() {
  Require(open_);
  out_ << "spreadsheet Book.Visible true\n";
}

void RecordingSpreadsheet::Select(int sheet) {
  Require(open_);
  out_ << "spreadsheet Select " << sheet << '\n';
}

void RecordingSpreadsheet::ClearContents(const std::string& range) {
  Require(open_);
  out_ << "spreadsheet ClearContents " << Escape(range) << '\n';
}

std::string RecordingSpreadsheet::Printed(const CellValue& value) const {
  if (const auto* text = std::get_if<std::string>(&value)) return Shown(*text, charset_);
  return Format(std::get<double>(value), Locale{});
}

void RecordingSpreadsheet::Value(const std::string& range, const std::vector<CellValue>& values) {
  Require(open_);
  out_ << "spreadsheet Value " << Escape(range) << " = ";
  const char* between = "";
  for (const CellValue& value : values) {
    out_ << between << Printed(value);
    between = "\\t";
  }
  out_ << '\n';
}

void RecordingSpreadsheet::Bold(const std::string& range) {
  Require(open_);
  out_ << "spreadsheet Bold " << Escape(range) << " true\n";
}

}  // namespace norvane
