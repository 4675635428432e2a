#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/disk_files.h"
#include "platform/spreadsheet.h"
#include "spreadsheet/block_writer.h"
#include "spreadsheet/office.h"
#include "spreadsheet/patient_thread.h"
#include "spreadsheet/started_program.h"

namespace norvane {

/// How LibreOffice is reached.
struct OfficeMeans {
  /// Throws `SpreadsheetFailure` when there is none.
  std::function<std::unique_ptr<Office>()> make_office;
  /// Calls the office's program with arguments. Throws `SpreadsheetFailure` when there is none.
  std::function<std::shared_ptr<const StartedProgram>(const std::vector<std::string>& arguments)>
      call;
  /// For one operation.
  std::chrono::milliseconds patience = std::chrono::seconds(60);
};

/// LibreOffice Calc. Rows that are written one below the other are gathered and sent as blocks,
/// at the latest before the next operation that looks at cells; a row that can't be written then
/// is passed over. A single cell is written at once. An office that can't be reached, or comes to
/// no book, is `SpreadsheetUnreachable`; what was started of it is ended.
class OfficeSpreadsheet : public Spreadsheet {
 public:
  OfficeSpreadsheet(const std::filesystem::path& program_folder, SpreadsheetWaiting& waiting,
                    OfficeMeans means);

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
  void Release() override;

 private:
  enum class Book { kNone, kUnseen, kShown };

  template <class Step>
  auto Run(Step step) -> decltype(step(std::declval<Office&>()));
  template <class Step>
  void Run_On_Book(Step step);

  template <class Step>
  auto Reach(const Step& step);
  bool Reach_Running();
  void Reach_By_Call();
  /// Whether the office is connected after one call, at the latest at `end`.
  bool Answers_Call(std::chrono::steady_clock::time_point end);
  bool Connect();
  void Show();
  void Write(CellBlock block);
  void Leave();

  DiskFiles files_;
  SpreadsheetWaiting& waiting_;
  OfficeMeans means_;

  std::string pipe_;  ///< where the office was listening last
  // From the first operation to the release:
  std::shared_ptr<Office> office_;
  std::unique_ptr<PatientThread> thread_;
  std::shared_ptr<const StartedProgram> program_;  ///< what was called last
  bool reached_ = false;
  bool called_ = false;  ///< one call is enough to know whether there is an answer
  bool created_ = false;
  Book book_ = Book::kNone;
  int charset_ = 0;
  BlockWriter rows_;
};

}  // namespace norvane
