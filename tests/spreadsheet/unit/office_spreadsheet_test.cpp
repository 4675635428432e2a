#include "spreadsheet/office_spreadsheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "spreadsheet/unreachable.h"
#include "test_folder.h"
#include "test_waiting.h"

namespace norvane {
namespace {

/// An office as it is seen from the program, and what was asked of it.
struct Scene {
  bool runs = false;
  bool takes_calls = true;  ///< a call makes it listen at the pipe
  int refused_connections = 0;
  int exit_status = 0;
  int protected_row = -1;  ///< a row that can't be written
  std::vector<std::string> pipes;
  std::vector<std::string> log;
};

std::string Shown(const CellRange& range) {
  return std::to_string(range.first_column) + "," + std::to_string(range.first_row) + "-" +
         std::to_string(range.last_column) + "," + std::to_string(range.last_row);
}

class SceneOffice : public Office {
 public:
  explicit SceneOffice(Scene& scene) : scene_(scene) {}

  bool Runs() override { return scene_.runs; }
  bool Connect(const std::string& pipe) override {
    const bool listens = std::count(scene_.pipes.begin(), scene_.pipes.end(), pipe) > 0;
    return listens && scene_.runs && scene_.refused_connections-- <= 0;
  }
  void Open(const std::string& path) override {
    Log("open " + std::filesystem::path(path).filename().string());
  }
  void Show() override { Log("show"); }
  void Select(int sheet) override { Log("select " + std::to_string(sheet)); }
  void Clear(const CellRange& range) override { Log("clear " + Shown(range)); }
  void Write(const CellBlock& block) override {
    const int rows = static_cast<int>(block.rows.size());
    if (block.first_row <= scene_.protected_row && scene_.protected_row < block.first_row + rows) {
      throw SpreadsheetFailure();
    }
    Log("write " + std::to_string(block.first_column) + "," + std::to_string(block.first_row) +
        " " + std::to_string(rows) + "x" + std::to_string(block.rows.front().size()));
  }
  void Bold(const CellRange& range) override { Log("bold " + Shown(range)); }
  void Leave() override { Log("leave"); }

 private:
  void Log(const std::string& operation) { scene_.log.push_back(operation); }

  Scene& scene_;
};

class LibreOfficeFromTheProgram : public testing::Test {
 protected:
  LibreOfficeFromTheProgram() {
    folder_.Write("Total.XLS", "");
    OfficeMeans means;
    means.make_office = [this] { return std::make_unique<SceneOffice>(scene_); };
    means.call = [this](const std::vector<std::string>& arguments) { return Call(arguments); };
    means.patience = std::chrono::seconds(2);
    spreadsheet_ = std::make_unique<OfficeSpreadsheet>(folder_.Path(), waiting_, std::move(means));
  }

  std::shared_ptr<const StartedProgram> Call(const std::vector<std::string>& arguments) {
    ++calls_;
    const std::string start = "--accept=pipe,name=";
    if (arguments.empty()) {
      scene_.log.push_back("start center");
    } else if (scene_.takes_calls && arguments[0].starts_with(start)) {
      scene_.pipes.push_back(
          arguments[0].substr(start.size(), arguments[0].find(';') - start.size()));
      scene_.runs = true;
    }
    auto program = std::make_shared<StartedProgram>();
    if (scene_.exit_status != 0) program->Set_Exit_Status(scene_.exit_status);
    return program;
  }

  /// Writes rows of two cells each.
  void Write_Rows(int first, int last) {
    for (int row = first; row <= last; ++row) {
      const std::string number = std::to_string(row);
      spreadsheet_->Value("A" + number + ":B" + number, {1.0, 2.0});
    }
  }

  void Open() {
    spreadsheet_->Open("total.xls", 0);
    scene_.log.clear();
  }

  using Log = std::vector<std::string>;

  TestFolder folder_;
  TestWaiting waiting_;
  Scene scene_;
  int calls_ = 0;
  std::unique_ptr<OfficeSpreadsheet> spreadsheet_;
};

TEST_F(LibreOfficeFromTheProgram, IsNotStartedToBeAttachedTo) {
  EXPECT_FALSE(spreadsheet_->GetObject());
  EXPECT_EQ(calls_, 0);
}

TEST_F(LibreOfficeFromTheProgram, IsAttachedToByACallWhenItRuns) {
  scene_.runs = true;
  scene_.refused_connections = 2;
  EXPECT_TRUE(spreadsheet_->GetObject());
  EXPECT_EQ(calls_, 1);
  EXPECT_EQ(scene_.pipes[0].size(), std::string("norvane-").size() + 32);
}

TEST_F(LibreOfficeFromTheProgram, GoesOnListeningForTheNextExport) {
  scene_.runs = true;
  spreadsheet_->GetObject();
  spreadsheet_->Release();
  EXPECT_TRUE(spreadsheet_->GetObject());
  EXPECT_EQ(calls_, 1);
}

TEST_F(LibreOfficeFromTheProgram, IsCalledAgainWhenItWasClosedBetweenTwoExports) {
  spreadsheet_->CreateObject();
  spreadsheet_->Release();
  scene_.runs = false;
  EXPECT_FALSE(spreadsheet_->GetObject());
  spreadsheet_->CreateObject();
  ASSERT_EQ(scene_.pipes.size(), 2U);
  EXPECT_NE(scene_.pipes[0], scene_.pipes[1]);
}

TEST_F(LibreOfficeFromTheProgram, FailsSoonWhenItsProgramFails) {
  scene_.takes_calls = false;
  scene_.exit_status = 1;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THROW(spreadsheet_->CreateObject(), SpreadsheetUnreachable);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1900));
  EXPECT_EQ(calls_, 1) << "what fails once fails again";
  EXPECT_THROW(spreadsheet_->Open("total.xls", 0), SpreadsheetUnreachable);
  EXPECT_EQ(calls_, 1) << "one attempt an export";
}

TEST_F(LibreOfficeFromTheProgram, IsWaitedForNoLongerThanThePatience) {
  scene_.takes_calls = false;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THROW(spreadsheet_->CreateObject(), SpreadsheetFailure);
  const auto waited = std::chrono::steady_clock::now() - start;
  EXPECT_GE(waited, std::chrono::seconds(2));
  EXPECT_LT(waited, std::chrono::seconds(4));
  EXPECT_GE(waiting_.moments, 40);
  EXPECT_EQ(calls_, 1) << "no second one beside the one that hangs";
}

TEST_F(LibreOfficeFromTheProgram, OpensByItselfWhatIsThereWithoutRegardToCase) {
  spreadsheet_->Open("total.xls", 0);
  EXPECT_EQ(scene_.log, Log{"open Total.XLS"});
  EXPECT_THROW(spreadsheet_->Open("nothing.xls", 0), SpreadsheetFailure);
}

TEST_F(LibreOfficeFromTheProgram, DoesNothingWithoutABook) {
  spreadsheet_->CreateObject();
  spreadsheet_->Set_Application_Visible();
  EXPECT_THROW(spreadsheet_->Set_Book_Visible(), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_->Select(1), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_->ClearContents("A1:B2"), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_->Value("A1", {1.0}), SpreadsheetFailure);
  EXPECT_THROW(spreadsheet_->Bold("A1:B1"), SpreadsheetFailure);
  EXPECT_EQ(scene_.log, Log{});
}

TEST_F(LibreOfficeFromTheProgram, SendsRowsAsOneBlock) {
  Open();
  Write_Rows(3, 7);
  EXPECT_EQ(scene_.log, Log{});
  spreadsheet_->Release();
  EXPECT_EQ(scene_.log, (Log{"write 0,2 5x2", "leave"}));
}

TEST_F(LibreOfficeFromTheProgram, SendsRowsBeforeWhateverLooksAtCells) {
  Open();
  Write_Rows(1, 1);
  spreadsheet_->Bold("A1:B1");
  Write_Rows(3, 4);
  spreadsheet_->Value("A5:C5", {1.0, 2.0, 3.0});
  Write_Rows(7, 8);
  spreadsheet_->ClearContents("A1:B2");
  Write_Rows(9, 9);
  spreadsheet_->Value("B11", {1.0});
  EXPECT_EQ(scene_.log, (Log{"write 0,0 1x2", "bold 0,0-1,0", "write 0,2 2x2", "write 0,4 1x3",
                             "write 0,6 2x2", "clear 0,0-1,1", "write 0,8 1x2", "write 1,10 1x1"}));
}

TEST_F(LibreOfficeFromTheProgram, WritesASingleCellAtOnceAndTellsWhenItCannot) {
  Open();
  scene_.protected_row = 4;
  spreadsheet_->Value("A4", {1.0});
  EXPECT_THROW(spreadsheet_->Value("A5", {1.0}), SpreadsheetFailure);
  EXPECT_EQ(scene_.log, Log{"write 0,3 1x1"});
}

TEST_F(LibreOfficeFromTheProgram, WritesAllRowsButThoseThatCannotBeWritten) {
  Open();
  scene_.protected_row = 4;
  Write_Rows(3, 7);
  spreadsheet_->Release();
  EXPECT_EQ(scene_.log,
            (Log{"write 0,2 1x2", "write 0,3 1x2", "write 0,5 1x2", "write 0,6 1x2", "leave"}));
}

TEST_F(LibreOfficeFromTheProgram, TellsOfTheProgressOfALongListAndOfItsEnd) {
  Open();
  Write_Rows(1, 999);
  spreadsheet_->Value("A1001", {1.0});
  EXPECT_TRUE(waiting_.told.empty());
  Write_Rows(1, 1200);
  spreadsheet_->Release();
  EXPECT_EQ(waiting_.told,
            (std::vector<std::pair<int, int>>{{500, 1200}, {1000, 1200}, {1200, 1200}, {0, 0}}));
}

TEST_F(LibreOfficeFromTheProgram, IsShownThoughThereIsNoBookToShow) {
  spreadsheet_->CreateObject();
  spreadsheet_->Release();
  EXPECT_EQ(scene_.log, (Log{"start center", "leave"}));
}

TEST_F(LibreOfficeFromTheProgram, ShowsTheBookWithTheApplication) {
  spreadsheet_->CreateObject();
  spreadsheet_->Set_Application_Visible();
  spreadsheet_->Open("total.xls", 0);
  spreadsheet_->Set_Application_Visible();
  spreadsheet_->Set_Book_Visible();
  spreadsheet_->Select(1);
  spreadsheet_->Release();
  EXPECT_EQ(scene_.log, (Log{"open Total.XLS", "show", "show", "select 1", "leave"}));
}

}  // namespace
}  // namespace norvane
