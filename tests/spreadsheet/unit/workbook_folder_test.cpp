#include "spreadsheet/workbook_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <string>

#include "platform/spreadsheet.h"
#include "test_folder.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

class AWorkbooksFolder : public testing::Test {
 protected:
  AWorkbooksFolder() { setenv("TMPDIR", temporary_.Path().c_str(), 1); }
  ~AWorkbooksFolder() override { unsetenv("TMPDIR"); }

  /// A folder of more than a week ago, with a workbook that is as old or new.
  fs::path Make(const std::string& name, bool written_to = false) {
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(24 * 7 + 1);
    const fs::path folder = temporary_ / name;
    fs::create_directory(folder);
    temporary_.Write(name + "/total.xlsx", "a workbook");
    if (!written_to) fs::last_write_time(folder / "total.xlsx", old);
    fs::last_write_time(folder, old);
    return folder;
  }

  TestFolder temporary_;
  const std::string digits_ = "0123456789abcdef0123456789abcde";
};

TEST_F(AWorkbooksFolder, IsTheUsersAloneWhateverHisMask) {
  const mode_t mask = umask(0);
  const fs::path folder = New_Workbook_Folder();
  umask(mask);
  EXPECT_EQ(folder.parent_path(), temporary_.Path());
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
}

TEST_F(AWorkbooksFolder, OfMoreThanAWeekAgoGoes) {
  const fs::path past = Make("norvane-" + digits_ + "0");
  New_Workbook_Folder();
  EXPECT_FALSE(fs::exists(past));
}

TEST_F(AWorkbooksFolder, WhoseWorkbookWasWrittenToStays) {
  const fs::path kept = Make("norvane-" + digits_ + "0", true);
  New_Workbook_Folder();
  EXPECT_TRUE(fs::exists(kept / "total.xlsx"));
}

TEST_F(AWorkbooksFolder, IsToldFromOthersByItsName) {
  const fs::path named = Make("norvane-mine");
  const fs::path odd = Make("norvane-" + digits_ + "x");
  const fs::path link = temporary_ / ("norvane-" + digits_ + "0");
  fs::create_directory_symlink(named, link);
  New_Workbook_Folder();
  EXPECT_TRUE(fs::exists(named / "total.xlsx"));
  EXPECT_TRUE(fs::exists(odd / "total.xlsx"));
  EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(AWorkbooksFolder, CannotBeMadeWhereThereIsNoPlace) {
  setenv("TMPDIR", (temporary_ / "nowhere").c_str(), 1);
  EXPECT_THROW(New_Workbook_Folder(), SpreadsheetFailure);
}

}  // namespace
}  // namespace norvane
