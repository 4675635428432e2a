#pragma once

#include <functional>
#include <memory>

namespace norvane {

/// Hears when the system asks the program to end, as it does with all programs at the end of a
/// session (SIGTERM, SIGHUP, SIGINT), and tells so from the event loop. Who asks a second time ends
/// the process at once. There is one in a process.
class SessionEnd {
 public:
  explicit SessionEnd(const std::function<void()>& on_end);
  ~SessionEnd();
  SessionEnd(const SessionEnd&) = delete;
  SessionEnd& operator=(const SessionEnd&) = delete;

 private:
  class Listener;
  std::unique_ptr<Listener> listener_;
};

}  // namespace norvane
