#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "office_program.h"
#include "spreadsheet/chosen_spreadsheet.h"
#include "spreadsheet/xlsx_spreadsheet.h"
#include "totals/dew_point_export.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// A machine without the plug-in, whose desktop opens files by a program that writes down which.
class AMachineWithoutAnOffice : public testing::Test {
 protected:
  AMachineWithoutAnOffice() {
    machine_.Write("xdg-open", "#!/bin/sh\necho \"$1\" >>'" + (machine_ / "opened").string() +
                                   "'.new\nmv '" + (machine_ / "opened").string() + "'.new '" +
                                   (machine_ / "opened").string() + "'\n");
    fs::permissions(machine_ / "xdg-open", fs::perms::owner_all);
    setenv("PATH", (machine_.Path().string() + ":" + path_).c_str(), 1);
    setenv("TMPDIR", machine_.Path().c_str(), 1);
  }
  ~AMachineWithoutAnOffice() override {
    setenv("PATH", path_.c_str(), 1);
    unsetenv("TMPDIR");
  }

  /// The file that the desktop was asked to open.
  fs::path Opened() {
    for (int i = 0; i < 500 && !fs::exists(machine_ / "opened"); ++i) usleep(10'000);
    std::string line = machine_.Bytes_Of("opened");
    if (!line.empty()) line.pop_back();
    return line;
  }

  const std::string path_ = std::getenv("PATH");
  TestFolder machine_;
  UserOffice office_;  // to read with
  OfficeProgram program_{OfficeProgram::PlugIn::kMissing};
};

TEST_F(AMachineWithoutAnOffice, GetsTheSameCellsInAFile) {
  program_.Add_Pipe("20");
  program_.Add_Pipe("30");
  program_.Export();
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(office_.Processes().size(), 0U);
  const fs::path file = Opened();
  ASSERT_EQ(file.filename(), "total.xlsx");
  EXPECT_EQ(file.parent_path().parent_path(), machine_.Path());
  EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(office_.Cells_Of_File(file.string(), "A1:Z600"), program_.Expected_Cells());
  const auto formats = office_.Probe("formats-of-file '" + file.string() + "' A1:T3");
  const auto has = [&](const std::string& line) {
    return std::find(formats.begin(), formats.end(), line) != formats.end();
  };
  EXPECT_TRUE(has("sheets\t1"));
  EXPECT_TRUE(has("landscape\tTrue"));
  EXPECT_TRUE(has("titles\tTrue\t0\t0"));
  EXPECT_TRUE(has("cell\t1\t0\tbold\tSTANDARD\tCalibri"));
  EXPECT_TRUE(has("cell\t1\t2\tplain\tSTANDARD\tCalibri"));
}

TEST_F(AMachineWithoutAnOffice, GetsTextsAsTheyStand) {
  const std::vector<std::string> texts = {"0,032", "1/2", "00012",    "=1+1",       "'abc",
                                          "1E5",   " 5 ", "a<b&c>\"", "http://a.b/"};
  program_.Add_Pipe("20");
  program_.Click(program_.Main_Screen().picTotal);
  std::string line;
  std::vector<SeenCell> expected;
  for (const std::string& text : texts) {
    const char column = static_cast<char>('B' + expected.size());
    line += '\t' + text;
    expected.push_back({column + std::string("3"), "TEXT", text});
  }
  program_.State().Calc_List[1] = line;
  program_.program().Run([&] { program_.Total_Screen().Xls_Export("total.xls"); });
  EXPECT_EQ(office_.Cells_Of_File(Opened().string(), "A3:Z3"), expected);
}

TEST_F(AMachineWithoutAnOffice, GetsTheTableOfDewPoints) {
  program_.program().Run([&] { DauwPunt_export(program_.State()); });
  EXPECT_EQ(program_.Printed(), "");
  ASSERT_EQ(Opened().filename(), "Empty.xlsx");
  const auto cells = office_.Cells_Of_File(Opened().string(), "A1:Z600");
  ASSERT_EQ(cells.size(), 24U * 17U + 16U);
  const auto& table = program_.Main_Screen().Dew_Table;
  for (int row = 1; row <= 24; ++row) {
    for (int column = 1; column <= 16; ++column) {
      const SeenCell& cell = cells[static_cast<std::size_t>((row - 1) * 17 + column - 1)];
      EXPECT_EQ(cell.type, "VALUE");
      // The file holds 16 digits, which tell all singles apart.
      EXPECT_EQ(static_cast<float>(cell.Number()), static_cast<float>(table(row, column)));
    }
  }
}

TEST_F(AMachineWithoutAnOffice, GetsTwoFilesFromTwoExports) {
  program_.Add_Pipe("20");
  program_.Export();
  const fs::path first = Opened();
  fs::remove(machine_ / "opened");
  program_.Export();
  EXPECT_NE(Opened(), first);
  EXPECT_TRUE(fs::exists(first));
}

TEST_F(AMachineWithoutAnOffice, SaysNothingWhenNoFileCanBeWritten) {
  setenv("TMPDIR", (machine_ / "nowhere").c_str(), 1);
  program_.Add_Pipe("20");
  program_.Export();
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_FALSE(program_.program().Ended());
}

TEST(AMachineWithoutAnything, SaysNothing) {
  OfficeProgram program(OfficeProgram::PlugIn::kMissing, [](const auto&) {
    return std::make_unique<ChosenSpreadsheet>(std::vector<ChosenSpreadsheet::Candidate>());
  });
  program.Add_Pipe("20");
  program.Export();
  program.program().Run([&] { program.Total_Screen().DetectExcel(); });
  EXPECT_EQ(program.Printed(), "");
  EXPECT_FALSE(program.program().Ended());
  program.program().Run([&] { DauwPunt_export(program.State()); });
  EXPECT_EQ(program.Printed().substr(0, 18), "runtime error 429:");
}

}  // namespace
}  // namespace norvane
