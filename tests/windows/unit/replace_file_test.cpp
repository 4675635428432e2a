#include "host/replace_file.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "../../unit/host/append_new.h"
#include "../../unit/support/test_folder.h"
#include "host/plain_file.h"

namespace norvane {
namespace {

using Clock = std::chrono::steady_clock;
using Names = std::vector<std::string>;

class AFileThatIsReplaced : public testing::Test {
 protected:
  HANDLE Open(const char* name, DWORD share) const {
    return CreateFileW((folder_ / name).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0,
                       nullptr);
  }

  TestFolder folder_;
  std::filesystem::path path_ = folder_ / "file";
};

// Each turn is an open file of its own, so that threads compete as processes do.
TEST_F(AFileThatIsReplaced, LosesNothingThatOthersWriteAtTheSameTime) {
  constexpr int kWriters = 4;
  constexpr int kLines = 50;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([&] {
      for (int i = 0; i < kLines; ++i) {
        Replace_File(path_, [](const std::string& bytes) { return bytes + "line\n"; });
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  const std::string bytes = folder_.Bytes_Of("file");
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), kWriters * kLines);
  EXPECT_EQ(bytes.size(), 5U * kWriters * kLines);
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(AFileThatIsReplaced, IsOldOrNewForWhoeverReadsMeanwhile) {
  const std::string as(20'000, 'a');
  const std::string bs(30'000, 'b');
  folder_.Write("file", as);
  std::atomic<bool> at_end = false;
  std::thread writer([&] {
    while (!at_end) {
      Replace_File(path_, [&](const std::string& bytes) { return bytes == as ? bs : as; });
    }
  });
  int as_met = 0;
  int bs_met = 0;
  for (int i = 0; i < 5000 && std::min(as_met, bs_met) < 20; ++i) {
    const auto bytes = Bytes_Of(path_);
    ASSERT_TRUE(bytes == as || bytes == bs) << (bytes ? bytes->size() : 0);
    ++(bytes == as ? as_met : bs_met);
  }
  at_end = true;
  writer.join();
  EXPECT_GT(as_met, 0);
  EXPECT_GT(bs_met, 0);
}

TEST_F(AFileThatIsReplaced, WaitsForAReaderWhoKeepsItOpen) {
  folder_.Write("file", "old and ");
  const HANDLE reader = Open("file", FILE_SHARE_READ);
  std::thread release([reader] {
    Sleep(100);
    CloseHandle(reader);
  });
  Replace_File(path_, Append_New);
  release.join();
  EXPECT_EQ(folder_.Bytes_Of("file"), "old and new");
}

TEST_F(AFileThatIsReplaced, StaysAsItIsWhenItIsReadOnly) {
  folder_.Write("file", "old");
  SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "old");
  EXPECT_EQ(folder_.Names(), Names{"file"});
  SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(AFileThatIsReplaced, IsNoFolder) {
  std::filesystem::create_directory(path_);
  Replace_File(path_, Append_New);
  EXPECT_TRUE(std::filesystem::is_directory(path_));
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(AFileThatIsReplaced, KeepsNobodyWaitingWhereNothingCanBeWritten) {
  const auto begin = Clock::now();
  Replace_File(folder_ / "missing" / "file", Append_New);
  EXPECT_LT(Clock::now() - begin, std::chrono::seconds(2));
}

}  // namespace
}  // namespace norvane
