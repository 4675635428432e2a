#include "schedule/schedule_session.h"

#include <gtest/gtest.h>

#include "../support/test_folder.h"

namespace norvane {
namespace {

constexpr const char* kSavedSchedule =
    "kind;medium_C;ambient_C;thickness_mm;diameter_mm\r\nsteel;80,5;15;13;21\r\n";

/// Sessions of a user whose folder holds the file a.csv.
class ScheduleSessions : public testing::Test {
 protected:
  ScheduleSessions() { folder.Write("a.csv", kSavedSchedule); }

  /// The file is opened and changed, and never saved.
  void Leave_A_Change() {
    ScheduleSession session(folder.Path(), '.');
    EXPECT_FALSE(session.Open(folder / "a.csv"));
    session.Document().Set_Text(0, 1, "60");
  }

  const TestFolder folder;
};

TEST(ScheduleSession, BeginsWithAnEmptyScheduleThatIsNotWorthKeeping) {
  const TestFolder folder;
  {
    ScheduleSession session(folder.Path(), ',');
    EXPECT_EQ(session.Document().Table().Rows(), 0u);
    EXPECT_EQ(session.Document().Table().Decimal(), ',');
    EXPECT_FALSE(session.Recover());
    session.Keep();
  }
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(ScheduleSessions, WhatItEndedWithUnsavedComesBack) {
  Leave_A_Change();
  ScheduleSession session(folder.Path(), '.');
  ASSERT_TRUE(session.Recover());
  EXPECT_TRUE(session.Recovered());
  EXPECT_EQ(session.Document().Table().Text(0, 1), "60");
  EXPECT_TRUE(session.Document().Changed());
  EXPECT_EQ(session.Save(), Saving::kDone);
  EXPECT_FALSE(session.Recovered());
  EXPECT_EQ(folder.Bytes_Of("a.csv"),
            "kind;medium_C;ambient_C;thickness_mm;diameter_mm\r\nsteel;60;15;13;21\r\n");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.csv"});
}

TEST_F(ScheduleSessions, ARecoveredScheduleOverwritesNothingNewer) {
  Leave_A_Change();
  folder.Write("a.csv", "theirs");
  ScheduleSession session(folder.Path(), '.');
  ASSERT_TRUE(session.Recover());
  EXPECT_EQ(session.Save(), Saving::kChangedMeanwhile);
  EXPECT_TRUE(session.Document().Changed());
  EXPECT_EQ(folder.Bytes_Of("a.csv"), "theirs");
}

TEST(ScheduleSession, NothingIsKeptOfChangesThatWereTakenBack) {
  const TestFolder folder;
  ScheduleSession session(folder.Path(), '.');
  session.Document().Insert(0, {session.Document().Table().Empty_Line()});
  session.Keep();
  EXPECT_EQ(folder.Names().size(), 2u);
  session.Document().Undo();
  session.Keep();
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(ScheduleSessions, SavedElsewhereItBelongsThere) {
  ScheduleSession session(folder.Path(), '.');
  EXPECT_FALSE(session.Open(folder / "a.csv"));
  EXPECT_EQ(session.Save_As(folder / "b.csv"), Saving::kDone);
  session.Document().Delete(0, 1);
  EXPECT_EQ(session.Save(), Saving::kDone);
  EXPECT_EQ(folder.Bytes_Of("a.csv"), kSavedSchedule);
  EXPECT_EQ(folder.Bytes_Of("b.csv"), "kind;medium_C;ambient_C;thickness_mm;diameter_mm\r\n");
}

TEST_F(ScheduleSessions, AFailureLeavesEverythingAsItIs) {
  ScheduleSession session(folder.Path(), '.');
  EXPECT_FALSE(session.Open(folder / "a.csv"));
  session.Document().Delete(0, 1);
  folder.Write("bad.csv", "kind\r\n");
  ASSERT_TRUE(session.Open(folder / "bad.csv"));
  EXPECT_EQ(session.Save_As(folder / "no_folder" / "a.csv"), Saving::kFailed);
  EXPECT_EQ(session.Place()->path, folder / "a.csv");
  EXPECT_TRUE(session.Document().Changed());
}

}  // namespace
}  // namespace norvane
