#include "study/schedule_file.h"

#include <gtest/gtest.h>

#include "study/schedule.h"

namespace norvane {
namespace {

ScheduleFile Read(std::string_view bytes) {
  return std::get<ScheduleFile>(Read_Schedule(bytes, Question::kHeatLoss));
}

std::string Problem(std::string_view bytes) {
  const auto read = Read_Schedule(bytes, Question::kHeatLoss);
  const auto* problem = std::get_if<ScheduleFileProblem>(&read);
  return problem == nullptr ? "" : std::to_string(problem->line) + ": " + problem->words;
}

/// The gas of a row in hundredths of a cubic metre, or its reason.
std::string Gas(std::string_view bytes, std::size_t row = 0) {
  const auto object = Objects_Of(Read(bytes), Question::kHeatLoss).at(row);
  if (const auto* reason = std::get_if<Reason>(&object)) return Words(*reason);
  const ScheduleRow result = Schedule_Row(std::get<Object>(object));
  if (const auto* reason = std::get_if<Reason>(&result)) return Words(*reason);
  return std::to_string(std::get<ShownHeatLoss>(result).values[7]);
}

TEST(ScheduleFile, IsReadByTheNamesOfItsColumnsInAnyOrder) {
  EXPECT_EQ(Gas("kind,medium_C,ambient_C,thickness_mm,diameter_mm\nsteel,80,15,13,21\n"), "272");
  EXPECT_EQ(Gas("diameter_mm,thickness_mm,ambient_C,medium_C,kind\r\n21,13,15,80,0\r\n"), "272");
}

TEST(ScheduleFile, WithSemicolonsHasDecimalCommas) {
  EXPECT_EQ(Gas("kind;medium_C;ambient_C;thickness_mm;diameter_mm;length_m\n"
                "steel;80;15;13,0;21;2,0\n"),
            "544");
  EXPECT_EQ(Gas("kind;medium_C;ambient_C;thickness_mm;diameter_mm\nsteel;80;15;13.5;21\n"),
            "thickness_mm is no number");
}

TEST(ScheduleFile, TakesTheUsualValueOfAnEmptyField) {
  EXPECT_EQ(Gas("kind,medium_C,ambient_C,thickness_mm,diameter_mm,length_m,hours_per_day\n"
                "steel,80,15,13,21,,\n"),
            "272");
}

TEST(ScheduleFile, GivesEachRowItsOwnReason) {
  const char* bytes =
      "kind,medium_C,ambient_C,thickness_mm,diameter_mm\n"
      "wood,80,15,13,21\n"
      "steel,eighty,15,13,21\n"
      "steel,80,15,13\n"
      "steel,,15,13,21\n"
      "steel,80,15,13,21\n";
  EXPECT_EQ(Gas(bytes, 0), "kind is none of steel copper metric sheet");
  EXPECT_EQ(Gas(bytes, 1), "medium_C is no number");
  EXPECT_EQ(Gas(bytes, 2), "the row has not as many fields as the header");
  EXPECT_EQ(Gas(bytes, 3), "medium_C is missing");
  EXPECT_EQ(Gas(bytes, 4), "272");
}

TEST(ScheduleFile, KeepsColumnsOfOtherNamesAndWhatIsNotUnderstood) {
  const std::string bytes =
      "drawing,kind,medium_C,ambient_C,thickness_mm,diameter_mm\r\n"
      "\"A, 1\",steel,hot,15,13,21\r\n";
  EXPECT_EQ(Write_Schedule(Read(bytes)), bytes);
}

TEST(ScheduleFile, ThatIsWrittenReadsTheSame) {
  ScheduleFile schedule = New_Schedule(Question::kHeatLoss, ',');
  schedule.rows.emplace_back(schedule.header.size());
  schedule.rows[0][0] = "2\" pipe; \"hot\"\nby the wall";
  schedule.rows[0][1] = "sheet";
  const ScheduleFile again = Read(Write_Schedule(schedule));
  EXPECT_EQ(again.header, schedule.header);
  EXPECT_EQ(again.rows, schedule.rows);
  EXPECT_EQ(again.dialect.separator, ';');
  EXPECT_EQ(again.dialect.decimal, ',');
}

TEST(ScheduleFile, PassesOverAByteOrderMarkAndEmptyLines) {
  EXPECT_EQ(Gas("\xEF\xBB\xBFkind,medium_C,ambient_C,thickness_mm,diameter_mm\n\n\r\n"
                "steel,80,15,13,21"),
            "272");
}

TEST(ScheduleFile, WithoutItsColumnsIsAProblemOfItsFirstLine) {
  EXPECT_EQ(Problem("kind,medium_C,thickness_mm\n"),
            "1: these columns are missing: ambient_C, diameter_mm");
  EXPECT_EQ(Problem("\n\nkind,kind\n"), "3: the column kind stands there twice");
  EXPECT_EQ(Problem(""), "1: there is no header");
}

TEST(ScheduleFile, ThatIsNoUtf8IsAProblemOfThatLine) {
  EXPECT_EQ(Problem("name,kind,medium_C,ambient_C,thickness_mm,diameter_mm\n"
                    "\"a\nb\",steel,80,15,13,21\n"
                    "\xE9t\xE9,steel,80,15,13,21\n"),
            "4: the row has bytes that are no UTF-8");
}

TEST(ScheduleFile, OfCondensationAsksForTheHumidity) {
  const auto read = Read_Schedule("kind,medium_C,ambient_C,diameter_mm\n", Question::kCondensation);
  EXPECT_EQ(std::get<ScheduleFileProblem>(read).words,
            "these columns are missing: humidity_percent");
  const ScheduleFile schedule = New_Schedule(Question::kCondensation, '.');
  EXPECT_EQ(schedule.header,
            (std::vector<std::string>{"name", "kind", "medium_C", "ambient_C", "humidity_percent",
                                      "diameter_mm", "lambda_W_mK", "alpha_W_m2K"}));
}

}  // namespace
}  // namespace norvane
