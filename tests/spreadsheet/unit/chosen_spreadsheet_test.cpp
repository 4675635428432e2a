#include "spreadsheet/chosen_spreadsheet.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "spreadsheet/unreachable.h"

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
  void CreateObject() override { Reach("CreateObject"); }
  void Set_Application_Visible() override { Log("Application.Visible"); }
  void Open(const std::string& name, int charset) override {
    Reach("Open " + name + " " + std::to_string(charset));
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

  std::string unreachable_at;  ///< the operation that doesn't reach it

 private:
  void Reach(const std::string& operation) {
    Log(operation);
    if (!unreachable_at.empty() && operation.starts_with(unreachable_at)) {
      throw SpreadsheetUnreachable();
    }
  }
  void Log(const std::string& operation) { log_.push_back(name_ + ": " + operation); }

  std::string name_;
  std::vector<std::string>& log_;
};

class TheChoice : public testing::Test {
 protected:
  TheChoice() : spreadsheet_(Candidates()) {}

  std::vector<ChosenSpreadsheet::Candidate> Candidates() {
    std::vector<ChosenSpreadsheet::Candidate> candidates;
    auto first = std::make_unique<NamedSpreadsheet>("first", log_);
    first_ = first.get();
    candidates.push_back({[this] { return first_is_there_; }, std::move(first)});
    candidates.push_back(
        {[this] { return second_is_there_; }, std::make_unique<NamedSpreadsheet>("second", log_)});
    return candidates;
  }

  bool first_is_there_ = true;
  bool second_is_there_ = true;
  std::vector<std::string> log_;
  NamedSpreadsheet* first_ = nullptr;
  ChosenSpreadsheet spreadsheet_;
};

TEST_F(TheChoice, FallsOnTheNextWhenTheFirstCannotBeReached) {
  first_->unreachable_at = "CreateObject";
  spreadsheet_.CreateObject();
  spreadsheet_.Open("total.xls", 0);
  spreadsheet_.Release();
  EXPECT_EQ(log_, (std::vector<std::string>{"first: CreateObject", "first: Release",
                                            "second: CreateObject", "second: Open total.xls 0",
                                            "second: Release"}));
}

TEST_F(TheChoice, FallsOnTheNextWhenTheFirstComesToNoBook) {
  first_->unreachable_at = "Open";
  spreadsheet_.CreateObject();
  spreadsheet_.Open("total.xls", 0);
  spreadsheet_.Set_Book_Visible();
  EXPECT_EQ(log_, (std::vector<std::string>{"first: CreateObject", "first: Open total.xls 0",
                                            "first: Release", "second: Open total.xls 0",
                                            "second: Book.Visible"}));
}

TEST_F(TheChoice, BeginsWithTheFirstAgainAtTheNextExport) {
  first_->unreachable_at = "CreateObject";
  spreadsheet_.CreateObject();
  spreadsheet_.Release();
  first_->unreachable_at.clear();
  log_.clear();
  spreadsheet_.CreateObject();
  EXPECT_EQ(log_, std::vector<std::string>{"first: CreateObject"});
}

TEST_F(TheChoice, FailsWhenTheLastCannotBeReachedEither) {
  second_is_there_ = false;
  first_->unreachable_at = "CreateObject";
  EXPECT_THROW(spreadsheet_.CreateObject(), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_.Open("total.xls", 0), SpreadsheetFailure);
  spreadsheet_.Release();
  EXPECT_EQ(log_, (std::vector<std::string>{"first: CreateObject", "first: Release"}));
}

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
