#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/spreadsheet.h"

namespace norvane {

/// The first of several spreadsheet programs that is there. The choice is made at the first
/// operation and stands until the release, unless the program turns out to be unreachable: the
/// next one is asked instead then. Where none is left, nothing can be done.
class ChosenSpreadsheet : public Spreadsheet {
 public:
  struct Candidate {
    std::function<bool()> is_there;
    std::unique_ptr<Spreadsheet> spreadsheet;
  };

  explicit ChosenSpreadsheet(std::vector<Candidate> candidates)
      : candidates_(std::move(candidates)) {}

  bool GetObject() override;
  void CreateObject() override;
  void Set_Application_Visible() override { Chosen().Set_Application_Visible(); }
  void Open(const std::string& name, int charset) override;
  void Set_Book_Visible() override { Chosen().Set_Book_Visible(); }
  void Select(int sheet) override { Chosen().Select(sheet); }
  void ClearContents(const std::string& range) override { Chosen().ClearContents(range); }
  void Value(const std::string& range, const std::vector<CellValue>& values) override {
    Chosen().Value(range, values);
  }
  void Bold(const std::string& range) override { Chosen().Bold(range); }
  void Ask_To_Report() override;
  void Release() override;

 private:
  /// Asks for an operation that comes before there is a book.
  template <class Operation>
  auto Ask(const Operation& operation);
  /// The first that is there, from `next_` on.
  Spreadsheet* Choose();
  Spreadsheet& Chosen();

  std::vector<Candidate> candidates_;
  Spreadsheet* chosen_ = nullptr;
  std::size_t next_ = 0;  ///< behind the one that was chosen
};

}  // namespace norvane
