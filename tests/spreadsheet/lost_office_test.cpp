#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "office_program.h"
#include "spreadsheet/make_spreadsheet.h"
#include "spreadsheet/office_plug_in.h"
#include "spreadsheet/office_spreadsheet.h"
#include "totals/dew_point_export.h"

namespace norvane {
namespace {

using std::chrono::steady_clock;

/// A spreadsheet that something happens to before one of the operations asked of it.
class InterruptedSpreadsheet : public Spreadsheet {
 public:
  InterruptedSpreadsheet(std::unique_ptr<Spreadsheet> spreadsheet, int operation,
                         std::function<void()> happening)
      : spreadsheet_(std::move(spreadsheet)), left_(operation), happening_(std::move(happening)) {}

  bool GetObject() override { return Asked().GetObject(); }
  void CreateObject() override { Asked().CreateObject(); }
  void Set_Application_Visible() override { Asked().Set_Application_Visible(); }
  void Open(const std::string& name, int charset) override { Asked().Open(name, charset); }
  void Set_Book_Visible() override { Asked().Set_Book_Visible(); }
  void Select(int sheet) override { Asked().Select(sheet); }
  void ClearContents(const std::string& range) override { Asked().ClearContents(range); }
  void Value(const std::string& range, const std::vector<CellValue>& values) override {
    Asked().Value(range, values);
  }
  void Bold(const std::string& range) override { Asked().Bold(range); }
  void Ask_To_Report() override { Asked().Ask_To_Report(); }
  void Release() override { Asked().Release(); }

  bool Happened() const { return left_ < 0; }

 private:
  Spreadsheet& Asked() {
    if (left_-- == 0) happening_();
    return *spreadsheet_;
  }

  std::unique_ptr<Spreadsheet> spreadsheet_;
  int left_;
  std::function<void()> happening_;
};

double Seconds_Since(steady_clock::time_point start) {
  return std::chrono::duration<double>(steady_clock::now() - start).count();
}

double Seconds_Of(const std::function<void()>& procedure) {
  const auto start = steady_clock::now();
  procedure();
  return Seconds_Since(start);
}

/// What is left of an export once its office or its book is gone takes no longer, in seconds, of
/// the minute that the program may wait. How long the office took before is the machine's affair.
constexpr double kSoon = 20;

/// The operation before which it happens, counted from 0: the export asks GetObject, CreateObject,
/// Application.Visible, Open, Book.Visible, Select, ClearContents, Application.Visible, Value,
/// Bold, Value for three lines, Value for four sums, and the release. An office that runs isn't
/// created.
class AnOfficeThatIsKilled : public testing::TestWithParam<int> {};

TEST_P(AnOfficeThatIsKilled, CostsTheStepsThatAreLeftAndNothingElse) {
  UserOffice office;
  TestWaiting waiting;
  InterruptedSpreadsheet* spreadsheet = nullptr;
  steady_clock::time_point killed;
  const auto kill_it = [&] {
    office.Kill();
    killed = steady_clock::now();
  };
  OfficeProgram program(OfficeProgram::PlugIn::kThere, [&](const auto& folder) {
    auto made = std::make_unique<InterruptedSpreadsheet>(Make_Spreadsheet(folder, waiting),
                                                         GetParam(), kill_it);
    spreadsheet = made.get();
    return made;
  });
  for (const char* thickness : {"20", "30", "40"}) program.Add_Pipe(thickness);
  program.Export();
  ASSERT_TRUE(spreadsheet->Happened());
  EXPECT_LT(Seconds_Since(killed), kSoon);
  EXPECT_EQ(program.Printed(), "");
  EXPECT_FALSE(program.program().Ended());
  // The next export is as good as any.
  program.Export();
  EXPECT_EQ(office.Processes().size(), 1U);
  EXPECT_EQ(office.Cells("total.xls", "A1:Z20"), program.Expected_Cells());
}

INSTANTIATE_TEST_SUITE_P(BeforeOperation, AnOfficeThatIsKilled,
                         testing::Values(2, 3, 4, 6, 8, 11, 14, 17));

TEST(AnOfficeThatIsKilledInALongList, CostsTheRowsThatAreLeft) {
  UserOffice office;
  OfficeProgram program;
  program.Fill_List(5000);
  steady_clock::time_point killed;
  program.waiting.on_progress = [&] {
    if (program.waiting.told.size() != 2) return;
    office.Kill();
    killed = steady_clock::now();
  };
  program.Export();
  EXPECT_LT(Seconds_Since(killed), kSoon);
  EXPECT_FALSE(program.program().Ended());
  EXPECT_EQ(program.waiting.told.back(), std::pair(0, 0));
}

TEST(ABookThatIsClosedMidway, CostsTheRowsThatAreLeft) {
  UserOffice office;
  OfficeProgram program;
  program.Fill_List(5000);
  steady_clock::time_point closed;
  program.waiting.on_progress = [&] {
    if (program.waiting.told.size() != 2) return;
    office.Probe("close total.xls");
    closed = steady_clock::now();
  };
  program.Export();
  EXPECT_LT(Seconds_Since(closed), kSoon);
  EXPECT_FALSE(program.program().Ended());
  EXPECT_EQ(office.Processes().size(), 1U);
}

TEST(AnOfficeThatIsKilled, EndsTheProgramInTheTableOfDewPoints) {
  UserOffice office;
  TestWaiting waiting;
  OfficeProgram program(OfficeProgram::PlugIn::kThere, [&](const auto& folder) {
    return std::make_unique<InterruptedSpreadsheet>(Make_Spreadsheet(folder, waiting), 100,
                                                    [&] { office.Kill(); });
  });
  program.program().Run([&] { DauwPunt_export(program.State()); });
  EXPECT_TRUE(program.program().Failed());
  EXPECT_EQ(program.Printed().substr(0, 18), "runtime error 429:");
}

/// An office that has stopped answering, and somebody who doesn't wait for ever.
TEST(AnOfficeThatHangs, IsGivenUpAfterAWhile) {
  constexpr std::chrono::seconds kPatience{3};
  UserOffice office;
  TestWaiting waiting;
  const auto stop = [&] {
    for (const pid_t process : office.Processes()) kill(process, SIGSTOP);
  };
  OfficeProgram program(OfficeProgram::PlugIn::kThere, [&](const auto& folder) {
    const auto plug_in = std::make_shared<OfficePlugIn>(folder);
    OfficeMeans means;
    means.make_office = [plug_in] { return plug_in->Make_Office(); };
    means.call = [](const auto& arguments) { return Start_Program(*Find_Office(), arguments); };
    means.patience = kPatience;
    return std::make_unique<InterruptedSpreadsheet>(
        std::make_unique<OfficeSpreadsheet>(folder, waiting, std::move(means)), 6, stop);
  });
  program.Add_Pipe("20");
  waiting.moments = 0;
  const double seconds = Seconds_Of([&] { program.Export(); });
  EXPECT_GT(seconds, 2.9);
  EXPECT_LT(seconds, 8);
  // Painted every 50 ms while nothing came.
  EXPECT_GE(waiting.moments, 3 * 20);
  EXPECT_FALSE(program.program().Ended());
}

}  // namespace
}  // namespace norvane
