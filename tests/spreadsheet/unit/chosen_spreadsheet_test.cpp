#include "spreadsheet/chosen_spreadsheet.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace norvane {
namespace {

/// Writes down what it is asked.
class NamedSpreadsheet : public Spreadsheet {
 public:
  NamedSpreadsheet(std::string name, std::vector<std::string>& log)
      : name_(std::move(name)), log_(log) {}

  bool GetObject() override {
    Log("GetObject");
    return true;
  }
  void CreateObject() override { Log("CreateObject"); }
  void Set_Application_Visible() override { Log("Application.Visible"); }
  void Open(const std::string& name, int charset) override {
    Log("Open " + name + " " + std::to_string(charset));
  }
  void Set_Book_Visible() override { Log("Book.Visible"); }
  void Select(int sheet) override { Log("Select " + std::to_string(sheet)); }
  void ClearContents(const std::string& range) override { Log("ClearContents " + range); }
  void Value(const std::string& range, const std::vector<CellValue>&) override {
    Log("Value " + range);
  }
  void Bold(const std::string& range) override { Log("Bold " + range); }
  void Ask_To_Report() override { Log("Ask_To_Report"); }
  void Release() override { Log("Release"); }

 private:
  void Log(const std::string& operation) { log_.push_back(name_ + ": " + operation); }

  std::string name_;
  std::vector<std::string>& log_;
};

class TheChoice : public testing::Test {
 protected:
  TheChoice() : spreadsheet_(Candidates()) {}

  std::vector<ChosenSpreadsheet::Candidate> Candidates() {
    std::vector<ChosenSpreadsheet::Candidate> candidates;
    candidates.push_back(
        {[this] { return first_is_there_; }, std::make_unique<NamedSpreadsheet>("first", log_)});
    candidates.push_back(
        {[this] { return second_is_there_; }, std::make_unique<NamedSpreadsheet>("second", log_)});
    return candidates;
  }

  bool first_is_there_ = true;
  bool second_is_there_ = true;
  std::vector<std::string> log_;
  ChosenSpreadsheet spreadsheet_;
};

TEST_F(TheChoice, IsTheFirstThatIsThereAndHandsAllOperationsOn) {
  EXPECT_TRUE(spreadsheet_.GetObject());
  spreadsheet_.CreateObject();
  spreadsheet_.Set_Application_Visible();
  spreadsheet_.Open("total.xls", 204);
  spreadsheet_.Set_Book_Visible();
  spreadsheet_.Select(1);
  spreadsheet_.ClearContents("A1:T500");
  spreadsheet_.Value("A1", {1.0});
  spreadsheet_.Bold("A1:T1");
  spreadsheet_.Ask_To_Report();
  spreadsheet_.Release();
  EXPECT_EQ(log_, (std::vector<std::string>{
                      "first: GetObject", "first: CreateObject", "first: Application.Visible",
                      "first: Open total.xls 204", "first: Book.Visible", "first: Select 1",
                      "first: ClearContents A1:T500", "first: Value A1", "first: Bold A1:T1",
                      "first: Ask_To_Report", "first: Release"}));
}

TEST_F(TheChoice, StandsUntilTheRelease) {
  first_is_there_ = false;
  spreadsheet_.GetObject();
  first_is_there_ = true;
  spreadsheet_.Select(1);
  spreadsheet_.Release();
  spreadsheet_.GetObject();
  EXPECT_EQ(log_, (std::vector<std::string>{"second: GetObject", "second: Select 1",
                                            "second: Release", "first: GetObject"}));
}

TEST_F(TheChoice, FailsWhereNothingIsThere) {
  first_is_there_ = second_is_there_ = false;
  EXPECT_THROW(spreadsheet_.GetObject(), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_.Open("total.xls", 0), SpreadsheetFailure);
  spreadsheet_.Ask_To_Report();
  spreadsheet_.Release();
  EXPECT_TRUE(log_.empty());
}

}  // namespace
}  // namespace norvane
