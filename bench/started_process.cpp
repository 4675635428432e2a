#include "bench/started_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace norvane {
namespace {

/// The number behind a key such as "Pss:"; 0 when it isn't there.
std::uint64_t Number_In(const std::filesystem::path& file, const std::string& key) {
  std::ifstream lines(file);
  std::string line;
  while (std::getline(lines, line)) {
    if (line.starts_with(key)) return std::stoull(line.substr(key.size()));
  }
  return 0;
}

std::filesystem::path Folder_Of(pid_t pid) {
  return std::filesystem::path("/proc") / std::to_string(pid);
}

}  // namespace

StartedProcess::StartedProcess(const std::vector<std::string>& command) : pid_(0) {
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const int error = posix_spawnp(&pid_, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error("can't start " + command.front());
}

StartedProcess::~StartedProcess() {
  kill(pid_, SIGTERM);
  constexpr int kRounds = 200;
  constexpr useconds_t kRound = 10000;  // microseconds
  for (int round = 0; round < kRounds; ++round) {
    if (waitpid(pid_, nullptr, WNOHANG) != 0) return;
    usleep(kRound);
  }
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
}

bool StartedProcess::Running() const {
  siginfo_t state{};
  return waitid(P_PID, static_cast<id_t>(pid_), &state, WEXITED | WNOHANG | WNOWAIT) == 0 &&
         state.si_pid == 0;
}

std::chrono::duration<double, std::milli> StartedProcess::Processor_Time() const {
  clockid_t clock{};
  timespec time{};
  if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &time) != 0) return {};
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::uint64_t StartedProcess::Memory() const {
  return Number_In(Folder_Of(pid_) / "smaps_rollup", "Pss:");
}

std::uint64_t StartedProcess::Sleeps() const {
  std::uint64_t sleeps = 0;
  for (const auto& task : std::filesystem::directory_iterator(Folder_Of(pid_) / "task")) {
    sleeps += Number_In(task.path() / "status", "voluntary_ctxt_switches:");
  }
  return sleeps;
}

std::uint64_t StartedProcess::Mapped_Files() const {
  std::set<std::string> files;
  std::ifstream lines(Folder_Of(pid_) / "maps");
  std::string line;
  while (std::getline(lines, line)) {
    const auto path = line.find(" /");
    if (path != std::string::npos) files.insert(line.substr(path + 1));
  }
  std::uint64_t bytes = 0;
  for (const std::string& file : files) {
    std::error_code gone;
    if (!std::filesystem::is_regular_file(file, gone)) continue;
    bytes += std::filesystem::file_size(file, gone);
  }
  constexpr std::uint64_t kKibi = 1024;
  return bytes / kKibi;
}

}  // namespace norvane
