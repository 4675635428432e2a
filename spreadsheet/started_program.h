#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace norvane {

/// A program that was started to live on its own, in a session of its own.
class StartedProgram {
 public:
  /// Its exit status once it has ended; 127 when it couldn't be started.
  std::optional<int> Exit_Status() const {
    const int status = status_;
    return status == kRuns ? std::nullopt : std::optional<int>(status);
  }
  void Set_Exit_Status(int status) { status_ = status; }

  /// The number of its process, which leads a session of its own.
  void Set_Process(int process) { process_ = process; }
  /// Kills it with all that it has started, if it still runs.
  void End() const;

 private:
  static constexpr int kRuns = -1;
  std::atomic<int> status_ = kRuns;
  std::atomic<int> process_ = 0;
};

/// Starts a program with arguments and returns at once.
std::shared_ptr<const StartedProgram> Start_Program(const std::filesystem::path& program,
                                                    const std::vector<std::string>& arguments);

/// Where the program of this name lies on the user's search path; nothing when it doesn't.
std::optional<std::filesystem::path> Find_Program(const std::string& name);

}  // namespace norvane
