#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "../support/child_process.h"
#include "../support/test_folder.h"
#include "append_new.h"
#include "host/failed_writes.h"
#include "host/replace_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ReplacedFileOnPosix : public testing::Test {
 protected:
  fs::perms Permissions() const { return fs::status(path_).permissions(); }

  TestFolder folder_;
  fs::path path_ = folder_ / "file";
};

TEST_F(ReplacedFileOnPosix, IsWrittenWhereALinkLeadsToThatLeadsToNothingYet) {
  fs::create_symlink("target", path_);
  Replace_File(path_, Append_New);
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(folder_.Bytes_Of("target"), "new");
}

TEST_F(ReplacedFileOnPosix, KeepsItsPermissions) {
  for (const unsigned bits : {0600U, 0640U, 0644U, 0666U, 0755U}) {
    folder_.Write("file", "");
    fs::permissions(path_, static_cast<fs::perms>(bits));
    Replace_File(path_, Append_New);
    EXPECT_EQ(Permissions(), static_cast<fs::perms>(bits));
    EXPECT_EQ(folder_.Bytes_Of("file"), "new");
  }
}

TEST_F(ReplacedFileOnPosix, StaysAsItIsWhenItIsReadOnly) {
  folder_.Write("file", "old");
  fs::permissions(path_, static_cast<fs::perms>(0444));
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "old");
  EXPECT_EQ(Permissions(), static_cast<fs::perms>(0444));
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFileOnPosix, StaysAsItIsInAReadOnlyFolder) {
  if (geteuid() == 0) GTEST_SKIP() << "root may write everywhere";
  folder_.Write("file", "old");
  fs::permissions(folder_.Path(), static_cast<fs::perms>(0555));
  Replace_File(path_, Append_New);
  Replace_File(folder_ / "other", Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "old");
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFileOnPosix, StaysAsItIsWhenTheDiskHasNoRoom) {
  folder_.Write("file", "old");
  ChildProcess cramped([&] {
    const rlimit little{1000, 1000};  // bytes of a file
    setrlimit(RLIMIT_FSIZE, &little);
    Let_Writes_Fail();
    Replace_File(path_, [](const std::string&) { return std::string(1500, 'x'); });
  });
  ASSERT_TRUE(cramped.Wait());
  EXPECT_EQ(folder_.Bytes_Of("file"), "old");
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFileOnPosix, IsNoFolderAndNoPipe) {
  fs::create_directory(path_);
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  Replace_File(path_, Append_New);
  Replace_File(folder_ / "pipe", Append_New);
  EXPECT_TRUE(fs::is_directory(path_));
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe"));
  EXPECT_EQ(folder_.Names(), (Names{"file", "pipe"}));
}

TEST_F(ReplacedFileOnPosix, IsOldOrNewForWhoeverReadsMeanwhile) {
  const std::string as(20'000, 'a');
  const std::string bs(30'000, 'b');
  folder_.Write("file", as);
  ChildProcess writer([&] {
    while (true) {
      Replace_File(path_, [&](const std::string& bytes) { return bytes == as ? bs : as; });
    }
  });
  // Each of the two is to be met several times.
  int as_met = 0;
  int bs_met = 0;
  for (int i = 0; i < 5000 && std::min(as_met, bs_met) < 20; ++i) {
    const std::string bytes = folder_.Bytes_Of("file");
    ASSERT_TRUE(bytes == as || bytes == bs) << bytes.size();
    ++(bytes == as ? as_met : bs_met);
  }
  EXPECT_GT(as_met, 0);
  EXPECT_GT(bs_met, 0);
}

}  // namespace
}  // namespace norvane
