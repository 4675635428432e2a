#include "driver/script_line.h"

#include <gtest/gtest.h>

#include <locale>
#include <string>
#include <tuple>
#include <vector>

#include "../support/test_program.h"
#include "catalogue/settings_form.h"
#include "frame/lang_form.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

ScriptLine Parsed(const std::string& text) {
  const auto line = Parse_Line(text);
  EXPECT_TRUE(line) << text;
  return line.value_or(ScriptLine{});
}

/// Form, field and indices of the place that a line names.
std::string Place_Of(const std::string& text) {
  const ScriptLine line = Parsed(text);
  std::string place = line.form == nullptr ? "nowhere" : line.form->name;
  if (!line.field) return place;
  place += "." + line.field->word;
  for (const int number : line.field->numbers) place += " " + std::to_string(number);
  return place;
}

TEST(AScriptLine, IsNothingWhereItIsBlankOrAComment) {
  for (const char* text : {"", " ", "   ", "#", "# start", "#: locale comma", "#| start"}) {
    EXPECT_FALSE(Parse_Line(text)) << text;
  }
}

TEST(AScriptLine, BeginsWithItsVerb) {
  EXPECT_EQ(Parsed("main").verb, Verb::kMain);
  EXPECT_EQ(Parsed("start").verb, Verb::kStart);
  EXPECT_EQ(Parsed("type txtmtrs 1").verb, Verb::kType);
  EXPECT_EQ(Parsed("erase txtmtrs").verb, Verb::kErase);
  EXPECT_EQ(Parsed("set txtmtrs 1").verb, Verb::kEvent);
}

TEST(AScriptLine, SaysWhatTheUserDoes) {
  const std::pair<const char*, UserAction> lines[] = {
      {"set txtmtrs 1", UserAction::kSetText},
      {"click cmdAdd", UserAction::kClick},
      {"down SpinButton1(0)", UserAction::kDown},
      {"up SpinButton1(0)", UserAction::kUp},
      {"hover cmdAdd", UserAction::kHover},
      {"hover Warmt", UserAction::kHover},
      {"choose Combo1 2", UserAction::kChoose},
      {"tab Settings.SSTab1 1", UserAction::kPickTab},
      {"activate Lang", UserAction::kActivate},
      {"rows Total.grdResult 1 2", UserAction::kPickRows},
      {"resize Total 1 2", UserAction::kResize},
      {"move Total 1 2", UserAction::kMove},
      {"close Lang", UserAction::kCloseBox},
  };
  for (const auto& [text, action] : lines) {
    EXPECT_EQ(Parsed(text).verb, Verb::kEvent) << text;
    EXPECT_EQ(Parsed(text).action, action) << text;
  }
}

TEST(AScriptLine, NamesAFieldOfTheMainFormOrOfAnother) {
  EXPECT_EQ(Place_Of("click cmdAdd"), "Warmt.cmdAdd");
  EXPECT_EQ(Place_Of("click Warmt.cmdAdd"), "Warmt.cmdAdd");
  EXPECT_EQ(Place_Of("set txtT(3) 21"), "Warmt.txtT 3");
  EXPECT_EQ(Place_Of("click Lang.Label2(1)"), "Lang.Label2 1");
  EXPECT_EQ(Place_Of("activate About"), "About");
  EXPECT_EQ(Place_Of("hover Warmt"), "Warmt");
  EXPECT_EQ(Place_Of("dump Address"), "Address");
  EXPECT_EQ(Place_Of("main"), "nowhere");
}

TEST(AScriptLine, MayNameAFieldThatDoesNotExist) {
  EXPECT_EQ(Place_Of("click Nothing"), "Warmt.Nothing");
  EXPECT_EQ(Place_Of("set txtT(4,9) 5"), "Warmt.txtT 4 9");
}

TEST(AScriptLine, TakesAllBehindOneBlankAsItsText) {
  EXPECT_EQ(Parsed("set txtmtrs 1 2").text, "1 2");
  EXPECT_EQ(Parsed("set txtmtrs  1 ").text, " 1 ");
  EXPECT_EQ(Parsed("set txtmtrs ").text, "");
  EXPECT_EQ(Parsed("set txtmtrs").text, "");
  EXPECT_EQ(Parsed("type txtmtrs # 1").text, "# 1");
  EXPECT_EQ(Parsed("set txtmtrs a\\tb\\r\\n\\\\").text, "a\tb\r\n\\");
}

TEST(AScriptLine, CountsOneWhereItGivesNoCount) {
  EXPECT_EQ(Parsed("tick").first, 1);
  EXPECT_EQ(Parsed("tick 12").first, 12);
  EXPECT_EQ(Parsed("erase txtmtrs").first, 1);
  EXPECT_EQ(Parsed("erase txtmtrs 3").first, 3);
}

TEST(AScriptLine, HasTheNumbersOfItsVerb) {
  EXPECT_EQ(Parsed("choose Combo1 0").first, 0);
  EXPECT_EQ(Parsed("tab Settings.SSTab1 -1").first, -1);
  const ScriptLine rows = Parsed("rows Total.grdResult 2 5");
  EXPECT_EQ(std::pair(rows.first, rows.last), std::pair(2, 5));
  const ScriptLine size = Parsed("resize Total  1000   -9000");
  EXPECT_EQ(std::pair(size.first, size.last), std::pair(1000, -9000));
  const ScriptLine place = Parsed("move Warmt -15 30");
  EXPECT_EQ(std::pair(place.first, place.last), std::pair(-15, 30));
}

TEST(AScriptLine, SetsUpTheWorldAroundTheProgram) {
  EXPECT_EQ(Parsed("answer yes").answer, MessageAnswer::kYes);
  EXPECT_EQ(Parsed("answer no").answer, MessageAnswer::kNo);
  EXPECT_EQ(Parsed("answer ok").answer, MessageAnswer::kOk);
  EXPECT_TRUE(Parsed("spreadsheet recording").spreadsheet);
  EXPECT_FALSE(Parsed("spreadsheet none").spreadsheet);
  EXPECT_EQ(Parsed("fonts Arial;Courier New").fonts,
            (std::vector<std::string>{"Arial", "Courier New"}));
  EXPECT_EQ(Parsed("fonts").fonts, std::vector<std::string>{""});
  const DisplayArea screen = Parsed("screen -90 60 15360 11460").screen;
  EXPECT_EQ(std::tuple(screen.left, screen.top, screen.width, screen.height),
            std::tuple(-90, 60, 15360, 11460));
}

TEST(AScriptLine, KeepsANameThatItGetsAsItIsWritten) {
  const ScriptLine line = Parsed("get Total.grdResult.Cell(1,05)");
  EXPECT_EQ(line.text, "Total.grdResult.Cell(1,05)");
  ASSERT_EQ(line.name.size(), 3U);
  EXPECT_EQ(line.name[2].numbers, (std::vector<int>{1, 5}));
}

TEST(AScriptLine, CallsAProcedureWithNumbersOrAText) {
  EXPECT_EQ(Parsed("call Color 80.5 -1").call->numbers, (std::vector<double>{80.5, -1}));
  EXPECT_EQ(Parsed("call DauwPunt_export").call->numbers, std::vector<double>());
  EXPECT_EQ(Parsed("call Val  1,5\\t").call->text, " 1,5\t");
}

TEST(AScriptLine, PassesOverWhatFollowsAVerbThatTakesNothing) {
  EXPECT_EQ(Parsed("start now").verb, Verb::kStart);
  EXPECT_EQ(Place_Of("click cmdAdd twice"), "Warmt.cmdAdd");
}

TEST(AScriptLine, IsNotUnderstoodWhereAnythingElseStands) {
  for (const char* text : {"jump",
                           "START",
                           " start",
                           "\tstart",
                           "gets Mtrs",
                           "tick x",
                           "tick 1.5",
                           "tick 1 ",
                           "tick  1",
                           "answer",
                           "answer maybe",
                           "answer yes ",
                           "spreadsheet",
                           "spreadsheet None",
                           "set",
                           "set ",
                           "set txtT( 5",
                           "set Warmt 5",
                           "set a.b.c 5",
                           "click Warmt",
                           "click Total.grdResult.Cell(1,1)",
                           "choose Combo1",
                           "choose Combo1 x",
                           "choose Combo1 1 2",
                           "rows Combo1 1",
                           "rows Combo1 1 2 3",
                           "activate txtmtrs",
                           "activate Lang.OK",
                           "close",
                           "close txtmtrs",
                           "resize Warmt 1",
                           "resize Warmt a b",
                           "resize txtmtrs 1 2",
                           "move Warmt 1",
                           "move txtmtrs 1 2",
                           "hover",
                           "hover a.b",
                           "get",
                           "get ",
                           "get a..b",
                           "dump",
                           "dump Nothing",
                           "dump Lang ",
                           "call",
                           "call Nothing",
                           "screen 0 0 15360",
                           "screen 0 0 15360 11520 1",
                           "call Inch 1",
                           "call Inch 1 2 3",
                           "call Inch 1  2",
                           "call Fahr 80x",
                           "call Fahr 1E999",
                           "call DauwPunt_export 1"}) {
    EXPECT_THROW(Parse_Line(text), ScriptError) << '"' << text << '"';
  }
}

/// A locale of a land that writes 1.234,5.
class CommaAndGroups : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(AScriptLine, MeansTheSameUnderEveryLocaleOfTheProcess) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
  EXPECT_EQ(Parsed("tick 1234").first, 1234);
  EXPECT_THROW(Parse_Line("tick 1.234"), ScriptError);
  EXPECT_EQ(Parsed("call Fahr 80.5").call->numbers, std::vector<double>{80.5});
  EXPECT_THROW(Parse_Line("call Fahr 80,5"), ScriptError);
  std::locale::global(before);
}

/// Line and place of each kind of event, written as a line and understood again.
TEST(ALineOfAnEvent, IsUnderstoodAsThatEvent) {
  TestProgram program;
  program.Start();
  Forms& forms = program.State().forms;
  Warmt& warmt = *forms.warmt;
  const auto line_of = [](UserAction action, Form& form, Field* field, int first, int last) {
    UserEvent event{action, form, field, "a\t\\ \xE9 "};
    event.first = first;
    event.last = last;
    (action == UserAction::kMove ? event.left : event.width) = first;
    (action == UserAction::kMove ? event.top : event.height) = last;
    const std::string line = Line_Of(event, 0);
    EXPECT_EQ(Parsed(line).verb, Verb::kEvent) << line;
    EXPECT_EQ(Parsed(line).action, action) << line;
    return line;
  };
  EXPECT_EQ(line_of(UserAction::kSetText, warmt, &warmt.txtT(3), 0, 0),
            "set txtT(3) a\\t\\\\ \xC3\xA9 ");
  EXPECT_EQ(line_of(UserAction::kClick, *forms.lang, &forms.lang->Label2(0), 0, 0),
            "click Lang.Label2(0)");
  EXPECT_EQ(line_of(UserAction::kDown, warmt, &warmt.SpinButton1(0), 0, 0), "down SpinButton1(0)");
  EXPECT_EQ(line_of(UserAction::kUp, warmt, &warmt.SpinButton1(0), 0, 0), "up SpinButton1(0)");
  EXPECT_EQ(line_of(UserAction::kHover, warmt, nullptr, 0, 0), "hover Warmt");
  EXPECT_EQ(line_of(UserAction::kHover, warmt, &warmt.cmdAdd, 0, 0), "hover cmdAdd");
  EXPECT_EQ(line_of(UserAction::kChoose, warmt, &warmt.Combo1, -1, 0), "choose Combo1 -1");
  EXPECT_EQ(line_of(UserAction::kPickTab, *forms.settings, &forms.settings->SSTab1, 2, 0),
            "tab Settings.SSTab1 2");
  EXPECT_EQ(line_of(UserAction::kPickRows, *forms.total, &forms.total->grdResult, 1, 12),
            "rows Total.grdResult 1 12");
  EXPECT_EQ(line_of(UserAction::kActivate, *forms.lang, nullptr, 0, 0), "activate Lang");
  EXPECT_EQ(line_of(UserAction::kResize, *forms.lang, nullptr, 9000, -5), "resize Lang 9000 -5");
  EXPECT_EQ(line_of(UserAction::kMove, *forms.lang, nullptr, 9000, -5), "move Lang 9000 -5");
  EXPECT_EQ(line_of(UserAction::kCloseBox, *forms.lang, nullptr, 0, 0), "close Lang");
}

}  // namespace
}  // namespace norvane
