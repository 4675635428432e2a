#include "totals/total_form.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>

#include "../support/test_program.h"
#include "../support/watch.h"

namespace norvane {
namespace {

class TheTotalScreen : public testing::Test {
 protected:
  TheTotalScreen() {
    program_.Start();
    program_.Set(warmt_.txtT(2), "13");
    program_.Click(warmt_.cmdAdd);
  }

  void Open() { ASSERT_EQ(program_.Click(warmt_.picTotal), std::nullopt); }
  Total& Screen() { return *program_.State().forms.total; }
  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(TheTotalScreen, FillsItselfOnceWhenItIsOpenedAndOnceAtEachActivation) {
  Open();
  int fills = 0;
  const Watch watch(Screen(), [&](const Field& field, Attribute attribute) {
    if (&field == &Screen().Label1 && attribute == Attribute::kCaption &&
        Screen().Label1.Caption().empty()) {
      ++fills;
    }
  });
  program_.Act(UserAction::kActivate, Screen());
  EXPECT_EQ(fills, 0);
  program_.Click(warmt_.cmdAdd);
  EXPECT_EQ(fills, 0);
  EXPECT_EQ(Screen().grdResult.Rows(), 2);
  program_.Act(UserAction::kActivate, Screen());
  EXPECT_EQ(fills, 1);
  EXPECT_EQ(Screen().grdResult.Rows(), 3);
}

TEST_F(TheTotalScreen, MakesTheLabelOfTheSumsAsWideAsItsText) {
  Open();
  EXPECT_EQ(Screen().Sums_Text.substr(0, 12), "t97   t89 = ");
  EXPECT_EQ(Screen().Label1.Caption(), Screen().Sums_Text);
  EXPECT_EQ(Screen().Label1.panel, &Screen().picTotal);
  EXPECT_EQ(Screen().Label1.Place().width, 90.0 * static_cast<double>(Screen().Sums_Text.size()));
}

TEST_F(TheTotalScreen, ClosesWithoutAHeader) {
  program_.State().Calc_List[0].clear();
  Open();
  EXPECT_FALSE(program_.State().forms.total.Loaded());
  EXPECT_TRUE(warmt_.Is_Active());
}

class TheExport : public TheTotalScreen {
 protected:
  TheExport() {
    program_.folder.Write("total.xls", "");
    program_.platform.Recorder().Set_Present(true);
    Open();
  }

  /// The recorded operations that begin like this, a line each.
  std::string Exported(const std::string& operation) {
    Screen().Xls_Export("total.xls");
    std::istringstream printed(program_.Printed());
    std::string found;
    for (std::string line; std::getline(printed, line);) {
      if (line.starts_with("spreadsheet " + operation)) found += line + "\n";
    }
    return found;
  }
};

TEST_F(TheExport, OpensTheWorkbookUnderALanguageWithoutACharacterSet) {
  program_.State().languages.Lang_Charset[0] = "Baltic";
  EXPECT_EQ(Exported("Open"), "spreadsheet Open total.xls\n");
  program_.State().languages.Lang_Charset[0] = std::nullopt;
  EXPECT_EQ(Exported("Open"), "spreadsheet Open total.xls\n");
}

TEST_F(TheExport, TakesAWorkbookByTheEndOfItsNameAlone) {
  program_.folder.Write("total.txt", "");
  Screen().Xls_Export("total.txt");
  EXPECT_EQ(program_.Printed(),
            "spreadsheet GetObject\nspreadsheet CreateObject\n"
            "spreadsheet Application.Visible true\n"
            "message No Excel connection | Excel 97/2000 not found | exclamation | ok -> ok\n");
  Screen().Xls_Export("TOTAL.XLS");
  EXPECT_EQ(program_.Printed().find("message"), std::string::npos);
}

TEST_F(TheExport, WritesNoLinesOfAListThatDoesNotExist) {
  program_.State().Calc_List.clear();
  EXPECT_EQ(Exported("Value A3"), "");
}

}  // namespace
}  // namespace norvane
