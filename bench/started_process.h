#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace norvane {

/// A program that is running, and what the system says of it. Ended with this.
class StartedProcess {
 public:
  explicit StartedProcess(const std::vector<std::string>& command);
  ~StartedProcess();
  StartedProcess(const StartedProcess&) = delete;
  StartedProcess& operator=(const StartedProcess&) = delete;

  [[nodiscard]] pid_t Pid() const { return pid_; }
  [[nodiscard]] bool Running() const;
  /// The time of the processor that all its threads took.
  [[nodiscard]] std::chrono::duration<double, std::milli> Processor_Time() const;
  /// Its share of the memory (PSS), in KiB.
  [[nodiscard]] std::uint64_t Memory() const;
  /// How often its threads went to sleep of their own accord, and so were woken.
  [[nodiscard]] std::uint64_t Sleeps() const;
  /// The sizes of all files that are mapped: the program and its libraries, in KiB.
  [[nodiscard]] std::uint64_t Mapped_Files() const;

 private:
  pid_t pid_;
};

}  // namespace norvane
