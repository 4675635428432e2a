#include "driver/script.h"

#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>

#include "../support/test_folder.h"
#include "../support/test_program.h"

namespace norvane {
namespace {

constexpr int kEnded = 0;
constexpr int kNotUnderstood = 2;
constexpr int kRuntimeError = 3;

class AScript : public testing::Test {
 protected:
  AScript() { folder_.Write("language.len", Numbered_Language_File()); }

  /// Plays lines and returns the exit status.
  int Played(const std::string& lines) {
    std::istringstream in(lines);
    std::ostringstream out;
    std::ostringstream errors;
    HeadlessPlatform platform(folder_.Path(), '.', out);
    Script script(platform, in, out, errors);
    const int status = static_cast<int>(script.Run());
    out_ = out.str();
    errors_ = errors.str();
    return status;
  }

  TestFolder folder_;
  std::string out_;
  std::string errors_;
};

TEST_F(AScript, EndsWithItsLastLine) {
  EXPECT_EQ(Played("start\nget Mtrs\n"), kEnded);
  EXPECT_EQ(out_, "Mtrs = 1\n");
  EXPECT_EQ(errors_, "");
}

TEST_F(AScript, MayBeEmpty) {
  EXPECT_EQ(Played(""), kEnded);
  EXPECT_EQ(Played("\n   \n# start\n"), kEnded);
  EXPECT_EQ(out_, "");
}

TEST_F(AScript, NeedsNoLastLineEndAndTakesTheOneOfOtherSystems) {
  EXPECT_EQ(Played("start\r\nset txtmtrs 7\r\nget txtmtrs"), kEnded);
  EXPECT_EQ(out_, "txtmtrs = 7\n");
}

TEST_F(AScript, EndsWellWhenTheProgramIsLeftByItsOwnExit) {
  EXPECT_EQ(Played("start\nclick lblMenu(3)\n"), kEnded);
  EXPECT_EQ(out_, "ended\n");
}

TEST_F(AScript, EndsWellWhenThereIsNoLanguage) {
  std::filesystem::remove(folder_ / "language.len");
  EXPECT_EQ(Played("start\n"), kEnded);
  EXPECT_EQ(out_,
            "message Quitting program | No language available: \\rwww.norvane.example\\rfor "
            "downloading language files. | information | ok -> ok\nended\n");
}

TEST_F(AScript, EndsWellWithAModalFormOpen) {
  EXPECT_EQ(Played("start\nclick cmdToolBar4(0)\nget Settings.Visible\n"), kEnded);
  EXPECT_EQ(out_, "Settings.Visible = true\n");
}

TEST_F(AScript, EndsWithARuntimeError) {
  EXPECT_EQ(Played("start\nset txtmtrs -40000\n"), kRuntimeError);
  EXPECT_EQ(out_, "runtime error 6: Overflow\nended\n");
  EXPECT_EQ(errors_, "");
}

TEST_F(AScript, EndsWithARuntimeErrorInsideAModalForm) {
  EXPECT_EQ(Played("start\nclick cmdToolBar5(0)\nset Settings.Text2(0) 40000\n"
                   "click Settings.Command1\nget Mtrs\n"),
            kRuntimeError);
  EXPECT_EQ(out_.substr(0, out_.find("refused")), "runtime error 6: Overflow\nended\n");
}

TEST_F(AScript, EndsWithTheRuntimeErrorOfACalledProcedure) {
  EXPECT_EQ(Played("start\ncall Inch 40000 0\n"), kRuntimeError);
  EXPECT_EQ(out_, "runtime error 6: Overflow\nended\n");
}

TEST_F(AScript, RefusesEveryEventAfterTheEnd) {
  EXPECT_EQ(Played("start\nclose Warmt\nget Mtrs\nset txtmtrs 3\ntick\ndump Warmt\nstart\n"
                   "call Fahr 80\nhover Warmt\n"),
            kEnded);
  std::istringstream lines(out_);
  std::string line;
  ASSERT_TRUE(std::getline(lines, line));
  EXPECT_EQ(line, "ended");
  int refused = 0;
  for (; std::getline(lines, line); ++refused) EXPECT_EQ(line.substr(0, 9), "refused: ");
  EXPECT_EQ(refused, 7);
}

TEST_F(AScript, StopsAtALineThatItDoesNotUnderstand) {
  EXPECT_EQ(Played("start\n# a remark\n\njump txtmtrs\nset txtmtrs -40000\n"), kNotUnderstood);
  EXPECT_EQ(out_, "");
  EXPECT_NE(errors_.find('4'), std::string::npos) << errors_;
  EXPECT_NE(errors_.find("jump txtmtrs"), std::string::npos) << errors_;
}

TEST_F(AScript, StopsAtALineThatItDoesNotUnderstandInsideAModalForm) {
  EXPECT_EQ(Played("start\nclick cmdToolBar4(0)\njump\nget Mtrs\n"), kNotUnderstood);
  EXPECT_EQ(out_, "");
  EXPECT_NE(errors_.find('3'), std::string::npos) << errors_;
}

TEST_F(AScript, CountsItsLinesInPlainDigitsUnderEveryLocale) {
  class Groups : public std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Groups));
  EXPECT_EQ(Played(std::string(1233, '\n') + "jump\n"), kNotUnderstood);
  std::locale::global(before);
  EXPECT_EQ(errors_, "line 1234 is not understood: jump\n");
}

TEST_F(AScript, DoesNotUnderstandALineAfterTheEndEither) {
  EXPECT_EQ(Played("start\nclose Warmt\nchoose Combo1 x\n"), kNotUnderstood);
  EXPECT_EQ(out_, "ended\n");
}

TEST_F(AScript, DoesNotUnderstandNamesThatDoNotExist) {
  for (const char* name : {"",
                           "Nothing",
                           "Warmt",
                           "Warmt.Nothing",
                           "txtT",
                           "txtT(4).Text",
                           "txtT(-1)",
                           "txtmtrs(0)",
                           "txtT(0).Nothing",
                           "txtT(0,0)",
                           "Nothing.Caption",
                           "Loaded.Nothing",
                           "Lambda(1)",
                           "Tool_Sel",
                           "Tool_Sel(6)",
                           "Lang_Text(0)",
                           "Lang_Text(0,151)",
                           "Lang_Text(0,-1)",
                           "Address_Table(21,0)",
                           "Calc_List(2)",
                           "Calc_List(-1)",
                           "Calc_List.Bound",
                           "Combo1.Item(99)",
                           "Combo1.Item(-1)",
                           "Settings.SSTab1.TabCaption(3)",
                           "Total.grdResult.Cell(1)",
                           "txtT(0).Font",
                           "txtT(0).Font.Colour",
                           "txtT(0)x",
                           "mtrs"}) {
    EXPECT_EQ(Played("start\nget " + std::string(name) + "\n"), kNotUnderstood) << name;
    EXPECT_EQ(out_, "") << name;
  }
}

TEST_F(AScript, DoesNotUnderstandLanguageSlotsBeyondTheLast) {
  for (const char* name : {"Lang_Text(100,0)", "Lang_Text(-1,0)", "Lang_Code(100)",
                           "Lang_FontName(-1)", "Lang_Charset(2147483647)"}) {
    EXPECT_EQ(Played("start\nget " + std::string(name) + "\n"), kNotUnderstood) << name;
    EXPECT_EQ(out_, "") << name;
  }
}

TEST_F(AScript, GivesAnIndexToControlArraysAlone) {
  EXPECT_EQ(Played("start\nget txtmtrs(-1).Text\n"), kNotUnderstood);
  EXPECT_EQ(out_, "");
}

TEST_F(AScript, DoesNotUnderstandArgumentsThatDoNotFit) {
  for (const char* line : {"tick x",
                           "tick 1.5",
                           "answer",
                           "answer maybe",
                           "spreadsheet",
                           "set",
                           "click",
                           "down",
                           "click Nothing",
                           "set txtT(4) 5",
                           "choose Combo1",
                           "choose Combo1 x",
                           "choose Combo1 1 2",
                           "rows Combo1 1",
                           "resize Warmt 1",
                           "resize Warmt a b",
                           "resize Warmt 1 2 3",
                           "activate txtmtrs",
                           "close txtmtrs",
                           "click Warmt",
                           "erase txtmtrs x",
                           "dump",
                           "dump Nothing",
                           "dump txtmtrs",
                           "call",
                           "call Nothing",
                           "call Inch",
                           "call Inch 1",
                           "call Inch 1 2 3",
                           "call Inch a b",
                           "call Fahr 80x",
                           "START",
                           "gets Mtrs"}) {
    EXPECT_EQ(Played("start\n" + std::string(line) + "\nget Mtrs\n"), kNotUnderstood) << line;
    EXPECT_EQ(out_, "") << line;
    EXPECT_NE(errors_, "") << line;
  }
}

TEST_F(AScript, LoadsAFormThatItNames) {
  EXPECT_EQ(Played("start\nget Loaded.Total\nget Total.Caption\nget Loaded.Total\n"), kEnded);
  EXPECT_EQ(out_, "Loaded.Total = false\nTotal.Caption = Total Calculation\nLoaded.Total = true\n");
}

TEST_F(AScript, LoadsAFormThatItNamesBeforeTheStart) {
  EXPECT_EQ(Played("get Settings.Visible\nget Loaded.Settings\n"), kEnded);
  EXPECT_EQ(out_, "Settings.Visible = false\nLoaded.Settings = true\n");
}

TEST_F(AScript, LoadsTheTotalScreenThatItNamesBeforeTheStart) {
  EXPECT_EQ(Played("get Total.Caption\n"), kEnded);
  EXPECT_EQ(out_, "Total.Caption = Total Calculation\n");
}

TEST_F(AScript, TypesAndErasesLetterByLetter) {
  EXPECT_EQ(Played("start\nset txtmtrs \ntype txtmtrs 12\nget Mtrs\nerase txtmtrs\nget Mtrs\n"
                   "erase txtmtrs 9\nget txtmtrs\n"),
            kEnded);
  EXPECT_EQ(out_, "Mtrs = 12\nMtrs = 1\ntxtmtrs = \n");
}

TEST_F(AScript, TakesALongTextInOneLine) {
  const std::string digits(100'000, '0');
  EXPECT_EQ(Played("start\nset txtmtrs " + digits + "5\nget Mtrs\n"), kEnded);
  EXPECT_EQ(out_, "Mtrs = 5\n");
}

}  // namespace
}  // namespace norvane
