#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/shared_state.h"
#include "screen/model/user_event.h"

namespace norvane {

/// The whole program. It lives on the platform that it is given, and any number of programs can
/// live in one process.
class Program {
 public:
  explicit Program(Platform& platform) : module1_(platform) {}

  /// Starts the program: shows the splash screen and loads the main screen behind it. From here
  /// on everything is an answer to an event.
  void Main();

  /// Carries out what the user does. Returns why it was refused, when it is something that a user
  /// could not do; nothing has happened then.
  std::optional<std::string> Dispatch(const UserEvent& event);

  /// A tick of a timer; nothing when the timer is disabled, or while the start or an event is being
  /// carried out.
  void Tick(TickTimer& timer);

  /// Runs a procedure that no event reaches in the way an event is carried out.
  void Run(const std::function<void()>& procedure);

  bool Ended() const { return module1_.desk.Ended(); }
  /// Whether the program ended with a runtime error.
  bool Failed() const { return failed_; }

  Module1& State() { return module1_; }
  const Module1& State() const { return module1_; }

 private:
  Module1 module1_;
  int depth_ = 0;
  bool failed_ = false;
};

}  // namespace norvane
