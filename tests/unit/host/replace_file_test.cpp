#include "host/replace_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "../support/test_folder.h"
#include "append_new.h"
#include "host/plain_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ReplacedFile : public testing::Test {
 protected:
  TestFolder folder_;
  fs::path path_ = folder_ / "file";
};

TEST_F(ReplacedFile, IsMadeWhenItIsMissing) {
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "new");
}

TEST_F(ReplacedFile, HoldsWhatBecameOfItsOldBytes) {
  folder_.Write("file", std::string("a\0\xFF\r\n", 5));
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), std::string("a\0\xFF\r\nnew", 8));
}

TEST_F(ReplacedFile, MayBecomeShorterAndEmpty) {
  folder_.Write("file", "a long text");
  Replace_File(path_, [](const std::string&) { return "short"; });
  EXPECT_EQ(folder_.Bytes_Of("file"), "short");
  Replace_File(path_, [](const std::string&) { return ""; });
  EXPECT_EQ(folder_.Bytes_Of("file"), "");
}

TEST_F(ReplacedFile, HasNothingLeftBesideIt) {
  Replace_File(path_, Append_New);
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFile, LeavesWhatSomebodyElseKeepsBesideIt) {
  folder_.Write("file.new", "somebody's own");
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "new");
  EXPECT_EQ(folder_.Bytes_Of("file.new"), "somebody's own");
}

TEST_F(ReplacedFile, IsEditedAnewWhenSomebodyWasFaster) {
  folder_.Write("file", "old and ");
  int times = 0;
  Replace_File(path_, [&](const std::string& bytes) {
    if (times++ == 0) folder_.Write("file", "somebody's own words and ");
    return bytes + "new";
  });
  EXPECT_EQ(times, 2);
  EXPECT_EQ(folder_.Bytes_Of("file"), "somebody's own words and new");
}

TEST_F(ReplacedFile, IsEditedAnewWhenItIsMadeMeanwhile) {
  int times = 0;
  Replace_File(path_, [&](const std::string& bytes) {
    if (times++ == 0) folder_.Write("file", "made and ");
    return bytes + "new";
  });
  EXPECT_EQ(times, 2);
  EXPECT_EQ(folder_.Bytes_Of("file"), "made and new");
}

TEST_F(ReplacedFile, StaysAsItIsWhenItNeverComesToRest) {
  folder_.Write("file", "");
  int times = 0;
  Replace_File(path_, [&](const std::string& bytes) {
    folder_.Write("file", std::string(static_cast<std::size_t>(++times), 'x'));
    return bytes + "new";
  });
  EXPECT_LT(times, 100);
  EXPECT_EQ(folder_.Bytes_Of("file"), std::string(static_cast<std::size_t>(times), 'x'));
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFile, StaysAsItIsWhenItIsLargerThanAnyTextOfTheProgram) {
  folder_.Write("file", "");
  fs::resize_file(path_, kLargestFile + 1);
  Replace_File(path_, Append_New);
  EXPECT_EQ(fs::file_size(path_), kLargestFile + 1);
  EXPECT_EQ(folder_.Names(), Names{"file"});
}

TEST_F(ReplacedFile, IsNotMadeInAMissingFolder) {
  Replace_File(folder_ / "missing" / "file", Append_New);
  EXPECT_EQ(folder_.Names(), Names{});
}

TEST_F(ReplacedFile, StaysAsItIsWhenItsEditingFails) {
  folder_.Write("file", "old and ");
  const auto fail = [](const std::string&) -> std::string { throw std::runtime_error("failed"); };
  EXPECT_THROW(Replace_File(path_, fail), std::runtime_error);
  EXPECT_EQ(folder_.Names(), Names{"file"});
  EXPECT_EQ(folder_.Bytes_Of("file"), "old and ");
  Replace_File(path_, Append_New);
  EXPECT_EQ(folder_.Bytes_Of("file"), "old and new");
}

}  // namespace
}  // namespace norvane
