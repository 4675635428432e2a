#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace norvane {

/// A second process that runs a procedure on a copy of this one's memory.
class ChildProcess {
 public:
  template <class Procedure>
  explicit ChildProcess(Procedure&& procedure) : id_(fork()) {
    if (id_ != 0) return;
    procedure();
    _exit(0);
  }
  ~ChildProcess() {
    if (id_ > 0) Kill();
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Whether the procedure came to its end.
  bool Wait() {
    int status = -1;
    const bool waited = id_ > 0 && waitpid(id_, &status, 0) == id_;
    id_ = -1;
    return waited && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  /// Ends the process wherever it stands.
  void Kill() {
    kill(id_, SIGKILL);
    Wait();
  }

 private:
  pid_t id_;
};

}  // namespace norvane
