#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "../support/child_process.h"
#include "../support/test_folder.h"
#include "host/replace_file.h"

namespace norvane {
namespace {

constexpr int kRewritings = 200;

void Append_Lines(const std::filesystem::path& path, const std::string& name) {
  for (int i = 0; i < kRewritings; ++i) {
    Replace_File(path,
                 [&](const std::string& bytes) { return bytes + name + std::to_string(i) + "\n"; });
  }
}

/// The lines that begin with a name, in their order, without the name.
std::vector<int> Lines_Of(const std::string& name, const std::string& bytes) {
  std::vector<int> numbers;
  std::istringstream lines(bytes);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(name)) numbers.push_back(std::stoi(line.substr(name.size())));
  }
  return numbers;
}

TEST(CompetingProcesses, LoseNothingThatTheOtherWrites) {
  const TestFolder folder;
  ChildProcess one([&] { Append_Lines(folder / "file", "one "); });
  ChildProcess other([&] { Append_Lines(folder / "file", "other "); });
  EXPECT_TRUE(one.Wait());
  EXPECT_TRUE(other.Wait());

  std::vector<int> all;
  for (int i = 0; i < kRewritings; ++i) all.push_back(i);
  const std::string bytes = folder.Bytes_Of("file");
  EXPECT_EQ(Lines_Of("one ", bytes), all);
  EXPECT_EQ(Lines_Of("other ", bytes), all);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 2 * kRewritings);
}

TEST(AKilledProcess, LeavesAWholeFileAndNobodyLockedOut) {
  constexpr int kRounds = 40;
  constexpr unsigned kLongestLife = 3000;  // microseconds
  const std::vector<std::string> texts = {"begin", std::string(60'000, 'a'),
                                          std::string(90'000, 'b')};
  const TestFolder folder;
  std::mt19937 random(1);
  int changed = 0;
  for (int round = 0; round < kRounds; ++round) {
    Replace_File(folder / "file", [&](const std::string&) { return texts[0]; });
    ASSERT_EQ(folder.Bytes_Of("file"), texts[0]) << "round " << round;
    ChildProcess writer([&] {
      for (std::size_t i = 0;; ++i) {
        Replace_File(folder / "file", [&](const std::string&) { return texts[1 + i % 2]; });
      }
    });
    usleep(static_cast<useconds_t>(random() % kLongestLife));
    writer.Kill();
    const std::string bytes = folder.Bytes_Of("file");
    ASSERT_NE(std::find(texts.begin(), texts.end(), bytes), texts.end()) << "round " << round;
    if (bytes != texts[0]) ++changed;
  }
  EXPECT_GT(changed, 0) << "no process lived long enough to write anything";
}

}  // namespace
}  // namespace norvane
