#include "spreadsheet/started_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "host/failed_writes.h"
#include "test_folder.h"

namespace norvane {
namespace {

int Status_Of(const StartedProgram& program) {
  for (int i = 0; i < 1000; ++i) {
    if (const auto status = program.Exit_Status()) return *status;
    usleep(10'000);
  }
  return -1;
}

/// Whether a process has ended, though nobody has asked for its status yet.
bool Is_Over(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  std::string number;
  std::string name;
  std::string state;
  file >> number >> name >> state;
  return state == "Z" || state.empty();
}

TEST(AStartedProgram, TellsItsExitStatus) {
  EXPECT_EQ(Status_Of(*Start_Program("/bin/sh", {"-c", "exit 7"})), 7);
  EXPECT_EQ(Status_Of(*Start_Program("/bin/sh", {"-c", "kill -9 $$"})), 128 + 9);
  EXPECT_EQ(Status_Of(*Start_Program("/bin/nothing of that name", {})), 127);
}

TEST(AStartedProgram, LivesInASessionOfItsOwnWithoutOurFiles) {
  const TestFolder folder;
  folder.Write("ours", "");
  const int ours = open((folder / "ours").c_str(), O_RDONLY);
  const std::string script = "cat /proc/$$/stat >'" + (folder / "stat").string() +
                             "'; ls -l /proc/$$/fd >'" + (folder / "files").string() + "'";
  const auto program = Start_Program("/bin/sh", {"-c", script});
  close(ours);
  ASSERT_EQ(Status_Of(*program), 0);
  // Its own number, its name, its state, its parent's, group's and session's number.
  std::istringstream words(folder.Bytes_Of("stat"));
  const std::vector<std::string> stat(std::istream_iterator<std::string>(words), {});
  EXPECT_EQ(stat.at(5), stat.at(0));
  const std::string files = folder.Bytes_Of("files");
  EXPECT_NE(files.find("/dev/null"), std::string::npos);
  EXPECT_EQ(files.find("ours"), std::string::npos);
}

TEST(AStartedProgram, HasTheSignalsBackThatTheProgramIgnores) {
  Let_Writes_Fail();
  EXPECT_EQ(Status_Of(*Start_Program("/bin/sh", {"-c", "kill -PIPE $$"})), 128 + SIGPIPE);
  EXPECT_EQ(Status_Of(*Start_Program("/bin/sh", {"-c", "kill -XFSZ $$"})), 128 + SIGXFSZ);
  Let_Writes_End_The_Process();
}

TEST(AStartedProgram, EndsWithAllThatItHasStarted) {
  const TestFolder folder;
  const auto program =
      Start_Program("/bin/sh", {"-c", "sleep 100 & echo $! >'" + (folder / "second").string() +
                                          ".new'; mv '" + (folder / "second").string() + ".new' '" +
                                          (folder / "second").string() + "'; wait"});
  for (int i = 0; i < 500 && !std::filesystem::exists(folder / "second"); ++i) usleep(10'000);
  const pid_t second = std::stoi(folder.Bytes_Of("second"));
  program->End();
  EXPECT_EQ(Status_Of(*program), 128 + SIGKILL);
  // Whoever takes over what is left of it sees it end.
  for (int i = 0; i < 500 && kill(second, 0) == 0 && !Is_Over(second); ++i) usleep(10'000);
  EXPECT_TRUE(kill(second, 0) != 0 || Is_Over(second));
}

TEST(AStartedProgram, DoesNotHoldUpWhoStartsIt) {
  const auto program = Start_Program("/bin/sh", {"-c", "sleep 0.2"});
  EXPECT_EQ(program->Exit_Status(), std::nullopt);
  EXPECT_EQ(Status_Of(*program), 0);
}

TEST(TheSearchPath, LeadsToPrograms) {
  const TestFolder folder;
  const std::string old_path = std::getenv("PATH");
  setenv("PATH", (folder.Path().string() + ":" + old_path).c_str(), 1);
  folder.Write("norvane-probe", "#!/bin/sh\n");
  EXPECT_EQ(Find_Program("norvane-probe"), std::nullopt) << "not executable";
  std::filesystem::permissions(folder / "norvane-probe", std::filesystem::perms::owner_all);
  EXPECT_EQ(Find_Program("norvane-probe"), folder / "norvane-probe");
  EXPECT_NE(Find_Program("sh"), std::nullopt);
  EXPECT_EQ(Find_Program("norvane-nothing"), std::nullopt);
  setenv("PATH", old_path.c_str(), 1);
}

}  // namespace
}  // namespace norvane
