#include "spreadsheet/started_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <future>
#include <sstream>
#include <system_error>
#include <thread>

#include "host/failed_writes.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr int kNotStarted = 127;
constexpr int kKilled = 128;  // and the signal's number, as shells say it

/// Becomes the program. Only calls that are safe between fork and exec.
[[noreturn]] void Become(const char* program, char* const* arguments) {
  setsid();
  sigset_t none;
  sigemptyset(&none);
  Let_Writes_End_The_Process();
  sigprocmask(SIG_SETMASK, &none, nullptr);
  const int nothing = open("/dev/null", O_RDWR);
  for (int file = 0; file <= 2; ++file) dup2(nothing, file);
#ifdef __linux__
  close_range(3, ~0U, 0);
#endif
  execv(program, arguments);
  _exit(kNotStarted);
}

int Wait_For(pid_t process) {
  if (process < 0) return kNotStarted;
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return kNotStarted;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status);
}

}  // namespace

void StartedProgram::End() const {
  if (process_ > 0 && !Exit_Status()) kill(-process_, SIGKILL);
}

std::shared_ptr<const StartedProgram> Start_Program(const fs::path& program,
                                                    const std::vector<std::string>& arguments) {
  const std::string path = program.string();
  std::vector<char*> pointers{const_cast<char*>(path.c_str())};
  for (const std::string& argument : arguments) {
    pointers.push_back(const_cast<char*>(argument.c_str()));
  }
  pointers.push_back(nullptr);
  const auto started = std::make_shared<StartedProgram>();
  std::promise<pid_t> process;
  try {
    // Somebody has to wait for it, or it would stay in the system's table when it has ended. Who
    // can't be had doesn't start it either.
    std::thread([started, number = process.get_future()]() mutable {
      started->Set_Exit_Status(Wait_For(number.get()));
    }).detach();
  } catch (const std::system_error&) {
    started->Set_Exit_Status(kNotStarted);
    return started;
  }
  const pid_t number = fork();
  if (number == 0) Become(path.c_str(), pointers.data());
  if (number > 0) started->Set_Process(number);
  process.set_value(number);
  return started;
}

std::optional<fs::path> Find_Program(const std::string& name) {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    const fs::path candidate = fs::path(folder) / name;
    std::error_code error;
    if (fs::is_regular_file(candidate, error) && access(candidate.c_str(), X_OK) == 0) {
      return candidate;
    }
  }
  return std::nullopt;
}

}  // namespace norvane
