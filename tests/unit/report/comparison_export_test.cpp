#include "report/comparison_export.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "../study/objects.h"
#include "../support/test_program.h"
#include "frame/shared_state.h"
#include "numbered_texts.h"

namespace norvane {
namespace {

ComparisonTable Comparison_In_Euro() {
  Prices prices;
  prices.energy[0] = 1.2;
  prices.of_pipe[13] = 4;
  return Comparison_Of(Steel_Pipe(), prices, Number_Of, Locale{','});
}

/// A program on whose machine there is a spreadsheet program.
class ComparisonExport : public testing::Test {
 protected:
  ComparisonExport() {
    program.Start();
    program.platform.Recorder().Set_Present(true);
    program.Printed();
  }
  std::vector<std::string> Exported() {
    Export_Comparison(program.State(), Comparison_In_Euro());
    std::istringstream printed(program.Printed());
    std::vector<std::string> lines;
    for (std::string line; std::getline(printed, line);) lines.push_back(line);
    return lines;
  }

  TestProgram program{','};
};

TEST_F(ComparisonExport, FillsTheWorkbookOfTheTotals) {
  program.folder.Write("total.xls", "");
  const std::vector<std::string> lines = Exported();
  const std::vector<std::string> opening(lines.begin(), lines.begin() + 6);
  EXPECT_EQ(opening, (std::vector<std::string>{
                         "spreadsheet GetObject", "spreadsheet CreateObject",
                         "spreadsheet Application.Visible true", "spreadsheet Open total.xls",
                         "spreadsheet Book.Visible true", "spreadsheet Select 1"}));
  const auto has = [&](const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  };
  EXPECT_TRUE(has("spreadsheet ClearContents A1:L500"));
  EXPECT_TRUE(has("spreadsheet Bold A1:L1 true"));
  // Numbers are numbers, whatever the user's decimal sign.
  EXPECT_TRUE(
      has("spreadsheet Value A4:L4 = "
          "13\\t24.2\\t17\\t68\\t2.72\\t2.16\\t26.34\\t4\\t3.26\\t1.2\\t1.92\\tt132, t131"))
      << lines[10];
  EXPECT_EQ(
      std::count_if(lines.begin(), lines.end(),
                    [](const std::string& line) { return line.find(" Value ") != line.npos; }),
      15);
}

TEST_F(ComparisonExport, WithoutTheWorkbookTellsTheUser) {
  const std::vector<std::string> lines = Exported();
  ASSERT_FALSE(lines.empty());
  EXPECT_TRUE(lines.back().starts_with("message ")) << lines.back();
  for (const std::string& line : lines) EXPECT_EQ(line.find(" Value "), std::string::npos);
}

}  // namespace
}  // namespace norvane
