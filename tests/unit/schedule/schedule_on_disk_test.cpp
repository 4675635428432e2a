#include "schedule/schedule_on_disk.h"

#include <gtest/gtest.h>

#include <random>

#include "../support/test_folder.h"
#include "host/plain_file.h"

namespace norvane {
namespace {

constexpr const char* kSchedule =
    "kind,medium_C,ambient_C,thickness_mm,diameter_mm\r\nsteel,80,15,13,21\r\n";

std::string Problem(const std::string& bytes) {
  const auto read = Schedule_Of(bytes);
  const auto* problem = std::get_if<ScheduleFileProblem>(&read);
  return problem == nullptr ? "" : std::to_string(problem->line) + ": " + problem->words;
}

SchedulePlace Opened(const std::filesystem::path& path) {
  return std::get<OpenedSchedule>(Open_Schedule(path)).place;
}

TEST(ScheduleOnDisk, TellsTheLineOfWhatIsWrong) {
  EXPECT_EQ(Problem(std::string(kSchedule) + "steel,\xFF,15,13,21\r\n"),
            "3: the row has bytes that are no UTF-8");
  EXPECT_EQ(Problem(std::string(kSchedule) + "steel,\"" + std::string(70'000, 'a')),
            "3: the row is longer than 65536 bytes");
  EXPECT_EQ(Problem("kind,medium_C\r\n"),
            "1: these columns are missing: ambient_C, thickness_mm, diameter_mm");
  EXPECT_EQ(Problem(""), "1: there is no header");
}

TEST(ScheduleOnDisk, RefusesMoreFieldsThanItCouldHold) {
  const std::string row(50'000, ',');
  std::string bytes = kSchedule;
  for (int i = 0; i < 41; ++i) bytes += row + "\r\n";
  EXPECT_EQ(Problem(bytes), "42: more than 2000000 fields");
}

TEST(ScheduleOnDisk, AnyBytesAreAScheduleOrAProblem) {
  std::mt19937 random(7);
  const std::string letters = "kind,;\t\"\n\r\xEF\xBB\xBF.0-";
  for (int i = 0; i < 20'000; ++i) {
    std::string bytes = i % 2 == 0 ? kSchedule : "";
    for (std::size_t n = random() % 60; n > 0; --n) {
      const char letter =
          random() % 8 == 0 ? static_cast<char>(random()) : letters[random() % letters.size()];
      bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(random() % (bytes.size() + 1)),
                   letter);
    }
    const auto read = Schedule_Of(bytes);
    if (const auto* file = std::get_if<ScheduleFile>(&read)) {
      const auto again = Schedule_Of(Write_Schedule(*file));
      ASSERT_TRUE(std::holds_alternative<ScheduleFile>(again));
      ASSERT_EQ(std::get<ScheduleFile>(again).rows, file->rows);
    } else {
      ASSERT_NE(std::get<ScheduleFileProblem>(read).words, "");
    }
  }
}

TEST(ScheduleOnDisk, WhatCannotBeReadIsAProblemWithoutALine) {
  const TestFolder folder;
  for (const auto& path : {folder / "missing.csv", folder.Path()}) {
    const auto opened = Open_Schedule(path);
    ASSERT_TRUE(std::holds_alternative<ScheduleFileProblem>(opened));
    EXPECT_EQ(std::get<ScheduleFileProblem>(opened).line, 0u);
  }
}

TEST(ScheduleOnDisk, AFileOfMoreThan64MegabytesIsRefused) {
  const TestFolder folder;
  folder.Write("large.csv", kSchedule);
  std::filesystem::resize_file(folder / "large.csv", kLargestFile + 1);
  EXPECT_TRUE(std::holds_alternative<ScheduleFileProblem>(Open_Schedule(folder / "large.csv")));
}

TEST(ScheduleOnDisk, IsSavedOverWhatWasOpened) {
  const TestFolder folder;
  folder.Write("a.csv", kSchedule);
  SchedulePlace place = Opened(folder / "a.csv");
  EXPECT_EQ(Save_Schedule(place, "one"), Saving::kDone);
  EXPECT_EQ(Save_Schedule(place, "two"), Saving::kDone);
  EXPECT_EQ(folder.Bytes_Of("a.csv"), "two");
}

std::vector<std::string> Header_Of(std::string_view bytes) {
  return std::get<ScheduleFile>(Schedule_Of(bytes)).header;
}

TEST(ScheduleOnDisk, ResultsOfAnEarlierRunAreLeftOut) {
  const auto opened = Schedule_Of(
      "name,gas_m3,kind,medium_C,ambient_C,thickness_mm,diameter_mm,surface_C,note,remark\n"
      "a,2.72,steel,80,15,13,21,24.2,mine,no saving\n"
      "b,2.72,steel,80,15,13,21\n");
  const auto& schedule = std::get<ScheduleFile>(opened);
  using Texts = std::vector<std::string>;
  EXPECT_EQ(schedule.header, (Texts{"name", "kind", "medium_C", "ambient_C", "thickness_mm",
                                    "diameter_mm", "note"}));
  EXPECT_EQ(schedule.rows[0], (Texts{"a", "steel", "80", "15", "13", "21", "mine"}));
  EXPECT_EQ(schedule.rows[1], (Texts{"b", "steel", "80", "15", "13", "21"}));
}

TEST(ScheduleOnDisk, ARemarkWithoutResultsIsTheUsersOwn) {
  const std::string columns = "kind,medium_C,ambient_C,thickness_mm,diameter_mm,remark";
  EXPECT_EQ(Header_Of(columns + "\n").back(), "remark");
  EXPECT_EQ(Header_Of(columns + ",oil_l\n").back(), "diameter_mm");
}

TEST(ScheduleOnDisk, WhatSomebodyElseHasWrittenMeanwhileStays) {
  const TestFolder folder;
  folder.Write("a.csv", kSchedule);
  SchedulePlace place = Opened(folder / "a.csv");
  folder.Write("a.csv", "theirs");
  EXPECT_EQ(Save_Schedule(place, "mine"), Saving::kChangedMeanwhile);
  EXPECT_EQ(folder.Bytes_Of("a.csv"), "theirs");
  EXPECT_EQ(Save_Schedule_Over(place, "mine"), Saving::kDone);
  EXPECT_EQ(folder.Bytes_Of("a.csv"), "mine");
}

TEST(ScheduleOnDisk, AFileThatHasGoneIsMadeAnew) {
  const TestFolder folder;
  folder.Write("a.csv", kSchedule);
  SchedulePlace place = Opened(folder / "a.csv");
  std::filesystem::remove(folder / "a.csv");
  EXPECT_EQ(Save_Schedule(place, "mine"), Saving::kDone);
  EXPECT_EQ(folder.Bytes_Of("a.csv"), "mine");
}

TEST(ScheduleOnDisk, TellsThatItCouldNotBeSaved) {
  const TestFolder folder;
  SchedulePlace place{folder / "no_folder" / "a.csv", 0};
  EXPECT_EQ(Save_Schedule_Over(place, "mine"), Saving::kFailed);
  SchedulePlace on_folder{folder.Path(), 0};
  EXPECT_EQ(Save_Schedule_Over(on_folder, "mine"), Saving::kFailed);
}

}  // namespace
}  // namespace norvane
