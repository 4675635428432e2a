#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "../support/test_folder.h"
#include "host/disk_files.h"

namespace norvane {
namespace {

using Names = std::vector<std::string>;

class DiskFilesPosixTest : public testing::Test {
 protected:
  TestFolder folder_;
  DiskFiles files_{folder_.Path()};
};

using FileNamesOnPosix = DiskFilesPosixTest;
using ListingOnPosix = DiskFilesPosixTest;
using ReadingOnPosix = DiskFilesPosixTest;

TEST_F(FileNamesOnPosix, HaveACaseInTheirAsciiLettersAlone) {
  folder_.Write("\xC4.txt", "capital");
  EXPECT_EQ(files_.Read("\xC4.TXT"), "capital");
  EXPECT_EQ(files_.Read("\xE4.txt"), std::nullopt);
  EXPECT_EQ(files_.List("\xE4.txt"), Names{});
  folder_.Write("[1].txt", "bracket");
  EXPECT_EQ(files_.Read("{1}.txt"), std::nullopt);
}

TEST_F(ListingOnPosix, LeavesLinksToFoldersOut) {
  std::filesystem::create_directory(folder_ / "folder");
  std::filesystem::create_directory_symlink(folder_ / "folder", folder_ / "language.lnl");
  folder_.Write("language.len", "");
  EXPECT_EQ(files_.List("language.l??"), Names{"language.len"});
}

TEST_F(ReadingOnPosix, OfAPipeIsRefusedWithoutWaiting) {
  ASSERT_EQ(mkfifo((folder_ / "language.len").c_str(), 0600), 0);
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

TEST_F(ReadingOnPosix, OfADeviceIsRefused) {
  std::filesystem::create_symlink("/dev/zero", folder_ / "language.len");
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

TEST_F(ReadingOnPosix, OfATableOfTheSystemIsRefused) {
  std::filesystem::create_symlink("/proc/self/maps", folder_ / "language.len");
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

TEST_F(ReadingOnPosix, OfALinkToNothingIsRefused) {
  std::filesystem::create_symlink(folder_ / "nothing", folder_ / "language.len");
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

TEST_F(ReadingOnPosix, OfAFileThatTheUserMayNotReadIsRefused) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
  folder_.Write("language.len", "text");
  std::filesystem::permissions(folder_ / "language.len", std::filesystem::perms::none);
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

}  // namespace
}  // namespace norvane
