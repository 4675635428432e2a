#include "schedule/recovery.h"

#include <gtest/gtest.h>

#include "../support/child_process.h"
#include "../support/test_folder.h"
#include "host/user_id.h"

namespace norvane {
namespace {

ScheduleFile Schedule_Named(const std::string& name) {
  ScheduleFile file = New_Schedule(Question::kHeatLoss, ',');
  file.rows.push_back({name, "steel", "80,5"});
  return file;
}

std::string Name_In(const std::optional<RecoveredSchedule>& recovered) {
  return recovered ? recovered->file.rows.at(0).at(0) : "nothing";
}

/// A process that keeps a schedule and is killed.
void Break_Off(const TestFolder& folder, const std::string& name,
               const std::optional<SchedulePlace>& place = {}) {
  ChildProcess process([&] {
    Recovery recovery(folder.Path());
    recovery.Keep(Schedule_Named("old"), place);
    recovery.Keep(Schedule_Named(name), place);
    std::raise(SIGKILL);
  });
  EXPECT_FALSE(process.Wait());
}

TEST(Recovery, BringsBackWhatAKilledProcessKept) {
  const TestFolder folder;
  const SchedulePlace place{folder / "line\nend, \"and\" \xC3\xA4.csv", 0xFEDCBA9876543210};
  Break_Off(folder, "mine", place);
  Recovery recovery(folder.Path());
  const auto recovered = recovery.Take_Over();
  ASSERT_EQ(Name_In(recovered), "mine");
  EXPECT_EQ(recovered->file.dialect.decimal, ',');
  ASSERT_TRUE(recovered->place);
  EXPECT_EQ(recovered->place->path, place.path);
  EXPECT_EQ(recovered->place->fingerprint, place.fingerprint);
}

TEST(Recovery, AScheduleThatWasNeverSavedHasNoPlace) {
  const TestFolder folder;
  Break_Off(folder, "mine");
  const auto recovered = Recovery(folder.Path()).Take_Over();
  ASSERT_EQ(Name_In(recovered), "mine");
  EXPECT_FALSE(recovered->place);
}

TEST(Recovery, NothingIsLeftOfWhatWasDropped) {
  const TestFolder folder;
  {
    Recovery recovery(folder.Path());
    EXPECT_TRUE(recovery.Keep(Schedule_Named("mine"), {}));
    EXPECT_EQ(folder.Names().size(), 2u);
    recovery.Drop();
  }
  EXPECT_TRUE(folder.Names().empty());
  EXPECT_EQ(Name_In(Recovery(folder.Path()).Take_Over()), "nothing");
}

TEST(Recovery, ALivingProcessKeepsItsOwn) {
  const TestFolder folder;
  Recovery alive(folder.Path());
  alive.Keep(Schedule_Named("alive"), {});
  Recovery other(folder.Path());
  EXPECT_EQ(Name_In(other.Take_Over()), "nothing");
  other.Keep(Schedule_Named("other"), {});
  other.Drop();
  alive.Keep(Schedule_Named("still alive"), {});
  EXPECT_EQ(Name_In(alive.Take_Over()), "nothing");
  EXPECT_EQ(folder.Names().size(), 2u);
}

TEST(Recovery, OneOfSeveralTakesOver) {
  const TestFolder folder;
  Break_Off(folder, "left");
  Recovery first(folder.Path());
  Recovery second(folder.Path());
  EXPECT_EQ(Name_In(first.Take_Over()), "left");
  EXPECT_EQ(Name_In(second.Take_Over()), "nothing");
  // It is the first one's own now.
  first.Keep(Schedule_Named("more"), {});
  EXPECT_EQ(folder.Names().size(), 2u);
  first.Drop();
  EXPECT_TRUE(folder.Names().empty());
}

TEST(Recovery, TheNewestComesFirstAndTheOthersAfterIt) {
  const TestFolder folder;
  Break_Off(folder, "one");
  for (const std::string& name : folder.Names()) {
    std::filesystem::last_write_time(
        folder / name, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  }
  Break_Off(folder, "two");
  Recovery first(folder.Path());
  EXPECT_EQ(Name_In(first.Take_Over()), "two");
  first.Drop();
  EXPECT_EQ(Name_In(first.Take_Over()), "one");
}

TEST(Recovery, AnEndWithoutDroppingLeavesTheChanges) {
  const TestFolder folder;
  { Recovery(folder.Path()).Keep(Schedule_Named("mine"), {}); }
  EXPECT_EQ(Name_In(Recovery(folder.Path()).Take_Over()), "mine");
}

TEST(Recovery, AnotherUsersIsLeftAlone) {
  const TestFolder folder;
  Break_Off(folder, "theirs");
  for (const std::string& name : folder.Names()) {
    if (!name.ends_with(".recovery")) {
      std::filesystem::remove(folder / name);
      continue;
    }
    std::string bytes = folder.Bytes_Of(name);
    const std::string mine = ',' + User_Id() + '\n';
    ASSERT_NE(bytes.find(mine), std::string::npos);
    folder.Write(name, bytes.replace(bytes.find(mine), mine.size(), ",somebody else\n"));
  }
  EXPECT_EQ(Name_In(Recovery(folder.Path()).Take_Over()), "nothing");
  EXPECT_EQ(folder.Names().size(), 1u) << "not even a file that tells that somebody looks at it";
}

TEST(Recovery, BytesOfAnyKindAreNoSchedule) {
  const TestFolder folder;
  for (const char* bytes : {"", "\n", "a,1\n", "\"a", "a\nkind,medium_C\n", "\xFF\xFE\n\n"}) {
    folder.Write("schedule-0.recovery", bytes);
    EXPECT_EQ(Name_In(Recovery(folder.Path()).Take_Over()), "nothing");
  }
}

TEST(Recovery, AFolderThatIsNotThereIsNoHindrance) {
  const TestFolder folder;
  Recovery recovery(folder / "missing");
  EXPECT_FALSE(recovery.Keep(Schedule_Named("mine"), {}));
  EXPECT_EQ(Name_In(recovery.Take_Over()), "nothing");
  recovery.Drop();
}

}  // namespace
}  // namespace norvane
