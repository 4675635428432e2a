#pragma once

#include "chance.h"
#include "platform/spreadsheet.h"
#include "random_user.h"
#include "spreadsheet/waiting.h"

namespace norvane {

/// A spreadsheet program that takes whatever it is given at once, lets the windows be painted in
/// between, and now and then can't do what it is asked.
class HastySpreadsheet : public Spreadsheet {
 public:
  HastySpreadsheet(SpreadsheetWaiting& waiting, Chance& chance, RandomUser& user)
      : waiting_(waiting), chance_(chance), user_(user) {}

  bool GetObject() override { return chance_.One_In(2); }
  void CreateObject() override { Do(); }
  void Set_Application_Visible() override { Do(); }
  void Open(const std::string&, int) override { Do(); }
  void Set_Book_Visible() override { Do(); }
  void Select(int) override { Do(); }
  void ClearContents(const std::string&) override { Do(); }
  void Value(const std::string&, const std::vector<CellValue>&) override { Do(); }
  void Bold(const std::string&) override { Do(); }
  void Ask_To_Report() override {}
  void Release() override { waiting_.Progress(0, 0); }

 private:
  void Do();

  SpreadsheetWaiting& waiting_;
  Chance& chance_;
  RandomUser& user_;
};

}  // namespace norvane
