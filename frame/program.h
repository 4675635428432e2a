#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/model/user_event.h"

namespace norvane {

/// The whole program. It lives on the platform that it is given, and any number of programs can
/// live in one process.
class Program {
 public:
  explicit Program(Platform& platform);

  /// Starts the program: shows the splash screen and loads the main screen behind it. From here
  /// on everything is an answer to an event.
  void Main();

  /// Carries out what the user does. Returns why it was refused, when it is something that a user
  /// could not do; nothing has happened then.
  /// @param event on any form, also one that a user could not reach
  std::optional<std::string> Dispatch(const UserEvent& event);

  /// A tick of a timer; nothing when the timer is disabled, or while the start or an event is being
  /// carried out.
  /// @param timer of a form of this program
  void Tick(TickTimer& timer);

  /// Runs a procedure that no event reaches in the way an event is carried out. What it throws ends
  /// the program with a message: a runtime error's own, or 7 and 51 for what C++ throws.
  /// @param procedure that may end the program
  void Run(const std::function<void()>& procedure);

  bool Ended() const { return module1_.desk.Ended(); }
  /// Whether the program ended with a runtime error.
  bool Failed() const { return failed_; }

  Module1& State() { return module1_; }
  const Module1& State() const { return module1_; }

 private:
  void Fail(const RuntimeError& error);

  Module1 module1_;
  /// Given back when there is no more, for the message and what the user does with it.
  std::unique_ptr<char[]> memory_for_the_end_;
  int depth_ = 0;
  bool failed_ = false;
};

}  // namespace norvane
