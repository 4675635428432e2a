#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "office_program.h"
#include "spreadsheet/chosen_spreadsheet.h"
#include "spreadsheet/office_plug_in.h"
#include "spreadsheet/office_spreadsheet.h"
#include "spreadsheet/xlsx_spreadsheet.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

/// A machine whose office is a script of ours, beside the writer of workbook files.
class ABrokenOffice : public testing::Test {
 protected:
  explicit ABrokenOffice() {
    setenv("PATH", (machine_.Path().string() + ":" + path_).c_str(), 1);
    setenv("TMPDIR", machine_.Path().c_str(), 1);
  }
  ~ABrokenOffice() override {
    setenv("PATH", path_.c_str(), 1);
    unsetenv("TMPDIR");
  }

  void Install(const std::string& script) {
    machine_.Write("soffice", "#!/bin/sh\necho $$ >>'" + (machine_ / "started").string() + "'\n" +
                                  script + "\n");
    fs::permissions(machine_ / "soffice", fs::perms::owner_all);
  }

  std::unique_ptr<Spreadsheet> Make(const fs::path& folder) {
    const auto plug_in = std::make_shared<OfficePlugIn>(folder);
    OfficeMeans means;
    means.make_office = [plug_in] { return plug_in->Make_Office(); };
    means.call = [](const auto& arguments) { return Start_Program(*Find_Office(), arguments); };
    means.patience = std::chrono::seconds(3);
    std::vector<ChosenSpreadsheet::Candidate> candidates;
    candidates.push_back({[plug_in] { return Find_Office() && plug_in->Load(); },
                          std::make_unique<OfficeSpreadsheet>(folder, waiting_, std::move(means))});
    candidates.push_back(
        {[] { return true; }, std::make_unique<XlsxSpreadsheet>(
                                  folder, waiting_, [this](const auto& file) { file_ = file; })});
    return std::make_unique<ChosenSpreadsheet>(std::move(candidates));
  }

  /// Exports a list of one line, in how many seconds.
  double Export() {
    program_.Add_Pipe("20");
    const auto start = steady_clock::now();
    program_.Export();
    return std::chrono::duration<double>(steady_clock::now() - start).count();
  }

  /// The processes of offices that were started, all of which have to be gone.
  std::size_t Started() {
    std::ifstream file(machine_ / "started");
    const std::vector<int> processes(std::istream_iterator<int>(file), {});
    for (const int process : processes) {
      EXPECT_FALSE(fs::exists("/proc/" + std::to_string(process) + "/exe")) << process;
    }
    return processes.size();
  }

  void Expect_A_Workbook() {
    EXPECT_EQ(program_.Printed(), "");
    EXPECT_FALSE(program_.program().Ended());
    EXPECT_EQ(file_.filename(), "total.xlsx");
    EXPECT_GT(fs::file_size(file_), 1000U);
  }

  const std::string path_ = std::getenv("PATH");
  TestFolder machine_;
  UserOffice office_;  // there is none of it
  TestWaiting waiting_;
  fs::path file_;
  OfficeProgram program_{OfficeProgram::PlugIn::kThere,
                         [this](const auto& folder) { return Make(folder); }};
};

TEST_F(ABrokenOffice, ThatEndsAtOnceIsReplacedByAWorkbookFile) {
  Install("exit 1");
  EXPECT_LT(Export(), 2);
  Expect_A_Workbook();
  EXPECT_EQ(Started(), 1U) << "no second one";
}

TEST_F(ABrokenOffice, ThatHangsIsReplacedByAWorkbookFileAndEnded) {
  Install("sleep 1000");
  EXPECT_LT(Export(), 6);
  Expect_A_Workbook();
  usleep(200'000);
  EXPECT_EQ(Started(), 1U) << "no second one";
}

TEST_F(ABrokenOffice, WhoseProfileCannotBeMadeIsReplacedByAWorkbookFileAndEnded) {
  Install(
      "exec /usr/lib/libreoffice/program/soffice '-env:UserInstallation=file:///proc/none' \"$@\"");
  EXPECT_LT(Export(), 8);
  Expect_A_Workbook();
  usleep(200'000);
  EXPECT_EQ(Started(), 1U) << "no second one";
  EXPECT_EQ(office_.Processes().size(), 0U);
}

TEST_F(ABrokenOffice, IsTriedAgainAtTheNextExport) {
  Install("exit 1");
  Export();
  file_.clear();
  Install("exit 2");
  Export();
  Expect_A_Workbook();
  EXPECT_EQ(Started(), 2U);
}

}  // namespace
}  // namespace norvane
