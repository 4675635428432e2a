#include "schedule/schedule_table.h"

#include <gtest/gtest.h>

#include "calc/shown_number.h"

namespace norvane {
namespace {

ScheduleTable Table(std::string_view bytes) {
  return ScheduleTable(std::get<ScheduleFile>(Read_Schedule(bytes, Question::kHeatLoss)));
}

std::size_t Place_Of(const ScheduleTable& table, std::string_view name) {
  for (std::size_t i = 0; i < table.Columns(); ++i) {
    if (table.Name_Of(i) == name) return i;
  }
  ADD_FAILURE() << "no column " << name;
  return 0;
}

std::string Outcome(const ScheduleTable& table, std::size_t row) {
  if (const auto* reason = std::get_if<Reason>(&table.Result(row))) return Words(*reason);
  return std::to_string(std::get<ShownHeatLoss>(table.Result(row)).values[7]);
}

/// The table with another text in one field.
void Set(ScheduleTable& table, std::size_t row, std::string_view column, const std::string& text) {
  table.Replace(row, 1, {table.With_Text(table.Line(row), Place_Of(table, column), text)});
}

constexpr const char* kTwoRows =
    "kind,room,medium_C,ambient_C,thickness_mm,diameter_mm\r\n"
    "steel,cellar,80,15,13,21\r\n"
    "sheet,roof,80,15,50,\r\n";

TEST(ScheduleTable, HasTheColumnsOfTheFileFirstAndThenThoseItLacks) {
  const ScheduleTable table = Table(kTwoRows);
  EXPECT_EQ(table.Name_Of(1), "room");
  EXPECT_EQ(table.Meaning_Of(1), nullptr);
  EXPECT_EQ(table.Name_Of(6), "name");
  EXPECT_EQ(table.Columns(), 13u);
  EXPECT_EQ(table.Text(0, 1), "cellar");
  EXPECT_EQ(table.Text(0, 6), "");
}

TEST(ScheduleTable, GivesEachRowItsResultOrItsReason) {
  ScheduleTable table = Table(kTwoRows);
  EXPECT_EQ(Outcome(table, 0), "272");
  EXPECT_EQ(Outcome(table, 1), "5682");
  Set(table, 0, "medium_C", "180");
  EXPECT_EQ(Outcome(table, 0), "medium_C is above 115");
  EXPECT_EQ(Outcome(table, 1), "5682");
}

TEST(ScheduleTable, SumsAreThoseOfTheRows) {
  ScheduleTable table = Table(kTwoRows);
  EXPECT_EQ(table.Sums().gas.Text(2, '.'), "59.54");
  Set(table, 1, "thickness_mm", "thick");
  EXPECT_EQ(table.Sums().gas.Text(2, '.'), "2.72");
  EXPECT_EQ(table.Sums().rows, 2);
  EXPECT_EQ(table.Sums().without_result, 1);
}

TEST(ScheduleTable, UntouchedIsWrittenAsItWasRead) {
  for (const char* bytes :
       {kTwoRows,
        "room;kind;medium_C;ambient_C;thickness_mm;diameter_mm\r\na;steel;80,5;15;13,0;21\r\n",
        "kind,medium_C,ambient_C,thickness_mm,diameter_mm\r\nsteel,80\r\nsteel,1,2,3,4,5,6\r\n"}) {
    EXPECT_EQ(Write_Schedule(Table(bytes).File()), bytes);
  }
}

TEST(ScheduleTable, AColumnThatTheFileLackedIsThereOnceARowHasATextInIt) {
  ScheduleTable table = Table(kTwoRows);
  Set(table, 1, "area_m2", "2");
  EXPECT_EQ(Outcome(table, 1), "11364");
  EXPECT_EQ(Write_Schedule(table.File()),
            "kind,room,medium_C,ambient_C,thickness_mm,diameter_mm,area_m2\r\n"
            "steel,cellar,80,15,13,21,\r\n"
            "sheet,roof,80,15,50,,2\r\n");
  Set(table, 1, "area_m2", "");
  EXPECT_EQ(Write_Schedule(table.File()), kTwoRows);
}

TEST(ScheduleTable, AShortRowHasAReasonUntilItIsEdited) {
  ScheduleTable table =
      Table("kind,medium_C,ambient_C,thickness_mm,diameter_mm\r\nsteel,80,15,13\r\n");
  EXPECT_EQ(Outcome(table, 0), "the row has not as many fields as the header");
  EXPECT_EQ(table.Text(0, 4), "");
  Set(table, 0, "diameter_mm", "21");
  EXPECT_EQ(Outcome(table, 0), "272");
}

TEST(ScheduleTable, ALongRowKeepsWhatTheHeaderHasNoNameFor) {
  ScheduleTable table =
      Table("kind,medium_C,ambient_C,thickness_mm,diameter_mm\r\nsteel,80,15,13,21,kept\r\n");
  Set(table, 0, "days", "60");
  EXPECT_EQ(Outcome(table, 0), "the row has not as many fields as the header");
  EXPECT_EQ(Write_Schedule(table.File()),
            "kind,medium_C,ambient_C,thickness_mm,diameter_mm,days\r\n"
            "steel,80,15,13,21,kept,60\r\n");
}

TEST(ScheduleTable, ReplacedRowsComeBack) {
  ScheduleTable table = Table(kTwoRows);
  const ScheduleLine first = table.Line(0);
  const auto gone = table.Replace(0, 2, {table.Empty_Line()});
  ASSERT_EQ(gone.size(), 2u);
  EXPECT_EQ(gone[0], first);
  EXPECT_EQ(table.Rows(), 1u);
  EXPECT_EQ(Outcome(table, 0), "kind is none of steel copper metric sheet");
  table.Replace(1, 0, gone);
  EXPECT_EQ(table.Rows(), 3u);
  EXPECT_EQ(Outcome(table, 2), "5682");
}

}  // namespace
}  // namespace norvane
