#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "data/runtime_error.h"
#include "host/code_page.h"
#include "office_program.h"
#include "totals/dew_point_export.h"

namespace norvane {
namespace {

constexpr const char* kAll = "A1:Z600";

/// The program beside an office that isn't running yet.
class TheExportToLibreOffice : public testing::Test {
 protected:
  void Expect_The_List() {
    const auto cells = office_.Cells("total.xls", kAll);
    EXPECT_EQ(cells, program_.Expected_Cells());
  }

  /// The lines about documents of the program's folder.
  std::vector<std::string> Books() {
    auto lines = office_.Probe("documents");
    std::erase_if(lines, [&](const std::string& line) {
      return line.find(program_.folder.Path().string()) == std::string::npos;
    });
    return lines;
  }

  std::string Line_Of(const std::string& book, bool modified, bool visible) {
    return "file://" + (program_.folder / book).string() + '\t' + (modified ? "True" : "False") +
           '\t' + (visible ? "True" : "False");
  }

  UserOffice office_;
  OfficeProgram program_;
};

TEST_F(TheExportToLibreOffice, FillsTheOfficeThatTheUserHasOpen) {
  office_.Start_Ordinarily();
  const auto processes = office_.Processes();
  ASSERT_EQ(processes.size(), 1U);
  const std::string bytes = program_.folder.Bytes_Of("total.xls");
  program_.Add_Pipe("20");
  program_.Add_Pipe("13.5");
  program_.Export();
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(office_.Processes(), processes);

  Expect_The_List();
  EXPECT_EQ(Books(), std::vector{Line_Of("total.xls", true, true)});
  EXPECT_EQ(program_.folder.Bytes_Of("total.xls"), bytes);
}

TEST_F(TheExportToLibreOffice, UsesTheSameOfficeASecondTime) {
  program_.Add_Pipe("20");
  program_.Export();
  const auto processes = office_.Processes();
  ASSERT_EQ(processes.size(), 1U);
  office_.Probe("put total.xls V1 'of the first book'");
  program_.Add_Pipe("30");
  program_.Export();
  EXPECT_EQ(office_.Processes(), processes);
  Expect_The_List();
  // The first book is the user's own by now.
  EXPECT_EQ(Books(), std::vector(2, Line_Of("total.xls", true, true)));
  office_.Probe("close total.xls");
  const auto first = office_.Cells("total.xls", "V1:V1");
  EXPECT_EQ(first, (std::vector<SeenCell>{{"V1", "TEXT", "of the first book"}}));
}

TEST_F(TheExportToLibreOffice, StartsAnOfficeWhereNoneRuns) {
  EXPECT_FALSE(program_.spreadsheet().GetObject());
  EXPECT_EQ(office_.Processes().size(), 0U);
  program_.spreadsheet().Release();
  program_.Add_Pipe("20");
  program_.Export();
  EXPECT_EQ(office_.Processes().size(), 1U);
  Expect_The_List();
  EXPECT_EQ(Books(), std::vector{Line_Of("total.xls", true, true)});
  EXPECT_GT(program_.waiting.moments, 0);
}

TEST_F(TheExportToLibreOffice, StartsAnotherOfficeWhenTheUserHasClosedTheFirst) {
  program_.Add_Pipe("20");
  program_.Export();
  const auto first = office_.Processes();
  office_.Kill();
  program_.Export();
  EXPECT_EQ(office_.Processes().size(), 1U);
  EXPECT_NE(office_.Processes(), first);
  Expect_The_List();
}

TEST_F(TheExportToLibreOffice, LetsTheOfficeEndWithItsLastWindow) {
  program_.Add_Pipe("20");
  program_.Export();
  ASSERT_EQ(office_.Processes().size(), 1U);
  office_.Probe("forget total.xls");
  office_.Close_Window("total.xls");
  EXPECT_TRUE(office_.Ends());
}

TEST_F(TheExportToLibreOffice, PutsTheSumsUnderTheFieldsOfTheLastLine) {
  program_.Add_Pipe("20");
  program_.Add_Pipe("30");
  program_.Click(program_.Main_Screen().picTotal);
  program_.Add_Sheet("40");
  // The Total screen can't be brought to the front with a sheet in the list.
  program_.program().Run([&] { program_.Total_Screen().Xls_Export("total.xls"); });
  const auto cells = office_.Cells("total.xls", kAll);
  EXPECT_EQ(cells, program_.Expected_Cells());
  const auto sum = std::find_if(cells.begin(), cells.end(),
                                [](const SeenCell& cell) { return cell.shown == "t97"; });
  ASSERT_NE(sum, cells.end());
  EXPECT_EQ(sum->name, "P7");
  EXPECT_EQ(cells.back().name, "S7");
}

TEST_F(TheExportToLibreOffice, LeavesTextsAsTheyStand) {
  const std::vector<std::string> texts = {"0,032",  "1/2",   "00012", "=1+1", "'abc",       "1E5",
                                          "TRUE",   "12:30", " 5 ",   "50 %", "+7",         "-0.5",
                                          "1.2.26", "\"",    "",      "@",    "http://a.b/"};
  program_.Add_Pipe("20");
  program_.Click(program_.Main_Screen().picTotal);
  std::string line;
  for (const std::string& text : texts) line += '\t' + text;
  program_.State().Calc_List[1] = line;
  program_.program().Run([&] { program_.Total_Screen().Xls_Export("total.xls"); });
  std::vector<SeenCell> expected;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].empty()) continue;
    expected.push_back({std::string(1, static_cast<char>('B' + i)) + "3", "TEXT", texts[i]});
  }
  EXPECT_EQ(office_.Cells("total.xls", "A3:Z3"), expected);
}

TEST_F(TheExportToLibreOffice, LeavesTheFormatsOfTheTemplate) {
  const std::string before = "formats-of-file '" + (program_.folder / "total.xls").string() + "' ";
  program_.Add_Pipe("20");
  program_.Export();
  const auto formats = office_.Probe("formats total.xls A1:T10");
  EXPECT_EQ(formats, office_.Probe(before + "A1:T10"));
  const auto has = [&](const std::string& line) {
    return std::find(formats.begin(), formats.end(), line) != formats.end();
  };
  EXPECT_TRUE(has("sheets\t1"));
  EXPECT_TRUE(has("landscape\tTrue"));
  EXPECT_TRUE(has("scale\t1\t0"));
  EXPECT_TRUE(has("titles\tTrue\t0\t0"));
  EXPECT_TRUE(has("cell\t1\t0\tbold\tSTANDARD\tArial"));
  EXPECT_TRUE(has("cell\t19\t0\tbold\tRIGHT\tArial"));
  EXPECT_TRUE(has("cell\t3\t2\tplain\tRIGHT\tArial"));
  EXPECT_TRUE(has("cell\t2\t2\tplain\tSTANDARD\tArial"));
}

TEST_F(TheExportToLibreOffice, ClearsWhatTheTemplateHoldsDownToRow500) {
  program_.Add_Pipe("20");
  program_.Click(program_.Main_Screen().picTotal);
  // A template of the user's own, with something in every corner.
  ASSERT_EQ(office_.Probe("fill-file '" + (program_.folder / "total.xls").string() +
                          "' A1 T500 T501 U1 C9 A501"),
            std::vector<std::string>{});
  program_.Click(program_.Total_Screen().Toolbar1);
  auto expected = program_.Expected_Cells();
  const auto second_row = std::find_if(expected.begin(), expected.end(), [](const SeenCell& cell) {
    return cell.name.size() == 2 && cell.name[1] == '3';
  });
  expected.insert(second_row, {"U1", "TEXT", "filled"});
  expected.push_back({"A501", "TEXT", "filled"});
  expected.push_back({"T501", "TEXT", "filled"});
  EXPECT_EQ(office_.Cells("total.xls", kAll), expected);
}

TEST_F(TheExportToLibreOffice, ShowsAStartedOfficeThoughTheTemplateIsMissing) {
  program_.Add_Pipe("20");
  std::filesystem::remove(program_.folder / "total.xls");
  program_.Export();
  EXPECT_EQ(program_.Printed(),
            "message No Excel connection | Excel 97/2000 not found | exclamation | ok -> ok\n");
  EXPECT_EQ(office_.Processes().size(), 1U);
  EXPECT_EQ(Books(), std::vector<std::string>{});
}

TEST_F(TheExportToLibreOffice, PassesOverATemplateThatIsNoWorkbook) {
  program_.Add_Pipe("20");
  program_.folder.Write("total.xls", "nothing that a spreadsheet could be");
  program_.Export();
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(program_.folder.Bytes_Of("total.xls"), "nothing that a spreadsheet could be");
}

TEST_F(TheExportToLibreOffice, FillsACopyWhereSomebodyElseHasTheTemplateOpen) {
  program_.folder.Write(".~lock.total.xls#", ",someone,else,01.01.2026 10:00,file:///nowhere;");
  program_.Add_Pipe("20");
  program_.Export();
  EXPECT_EQ(Books(), std::vector<std::string>{});
  EXPECT_EQ(office_.Probe("documents"), std::vector<std::string>{"\tTrue\tTrue"});
  EXPECT_EQ(office_.Cells("''", kAll), program_.Expected_Cells());
}

TEST_F(TheExportToLibreOffice, FillsTheTableOfDewPoints) {
  const std::string bytes = program_.folder.Bytes_Of("xls/Empty.xls");
  program_.program().Run([&] { DauwPunt_export(program_.State()); });
  EXPECT_EQ(program_.Printed(), "");
  const auto cells = office_.Cells("Empty.xls", kAll);
  ASSERT_EQ(cells.size(), 24U * 17U + 16U);
  const auto& table = program_.Main_Screen().Dew_Table;
  std::size_t next = 0;
  for (int row = 1; row <= 24; ++row) {
    for (int column = 1; column <= 16; ++column, ++next) {
      EXPECT_EQ(cells[next].name,
                std::string(1, static_cast<char>('@' + column)) + std::to_string(row));
      EXPECT_EQ(cells[next].type, "VALUE");
      EXPECT_EQ(cells[next].Number(), static_cast<double>(table(row, column)));
    }
    EXPECT_EQ(cells[next++],
              (SeenCell{"Q" + std::to_string(row), "VALUE", std::to_string(row) + ".0"}));
  }
  for (int column = 1; column <= 16; ++column, ++next) {
    EXPECT_EQ(cells[next].name, std::string(1, static_cast<char>('@' + column)) + "25");
    EXPECT_EQ(cells[next].shown, std::to_string(column) + ".0");
  }
  EXPECT_EQ(Books(), std::vector{Line_Of("xls/Empty.xls", true, true)});
  EXPECT_EQ(program_.folder.Bytes_Of("xls/Empty.xls"), bytes);
}

TEST_F(TheExportToLibreOffice, EndsTheProgramWhenTheBookForTheDewPointsIsMissing) {
  std::filesystem::remove(program_.folder / "xls/Empty.xls");
  program_.program().Run([&] { DauwPunt_export(program_.State()); });
  EXPECT_TRUE(program_.program().Failed());
}

TEST(TheExportOfARussianProgram, ArrivesInCyrillic) {
  UserOffice office;
  const int kCyrillic = 204;
  std::string file = "Norvane,Arial,204\r\n0,name=English-1\r\n";
  for (const auto& [number, text] :
       {std::pair(81, "Изделие"), std::pair(82, "Объект"), std::pair(97, "Итого"),
        std::pair(51, "Экономия электроэнергии, ёЁ№")}) {
    file += std::to_string(number) + "," + From_Utf8(text, kCyrillic) + "\r\n";
  }
  OfficeProgram program(OfficeProgram::PlugIn::kThere, {}, file);
  program.Add_Pipe("20");
  program.Export();
  const auto cells = office.Cells("total.xls", kAll);
  const auto has = [&](const SeenCell& cell) {
    return std::find(cells.begin(), cells.end(), cell) != cells.end();
  };
  EXPECT_TRUE(has({"B1", "TEXT", "Изделие"}));
  EXPECT_TRUE(has({"C1", "TEXT", "Объект"}));
  EXPECT_TRUE(has({"T1", "TEXT", "Экономия электроэнергии, ёЁ№"}));
  EXPECT_TRUE(has({"Q5", "TEXT", "Итого"}));
}

}  // namespace
}  // namespace norvane
