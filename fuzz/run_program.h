#pragma once

#include "frame/program.h"
#include "memory_platform.h"

namespace norvane {

/// A whole program on a folder in memory.
class RunningProgram {
 public:
  explicit RunningProgram(char decimal_separator);

  /// From the start to the main screen.
  void Start();
  void Tick();
  /// As many ticks as the splash takes.
  void Wait();

  /// Does what the user would, where he could; a modal form that opens is closed by its box.
  void Click(Field& field);
  void Close(Form& form);

  bool Ended() const { return program.Ended(); }
  Module1& State() { return program.State(); }
  Forms& forms() { return State().forms; }

  /// A program that ended stays as it is and refuses everything.
  void Require_Order();

  MemoryPlatform platform;
  Program program;
};

}  // namespace norvane
