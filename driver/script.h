#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "driver/headless_platform.h"
#include "driver/script_line.h"
#include "frame/program.h"

namespace norvane {

/// How a run of a script ended; the value is the exit status of the driver.
enum class ScriptOutcome { kEnded = 0, kNotUnderstood = 2, kRuntimeError = 3 };

/// Plays a script, one event a line, at a program on a headless platform, and prints what the
/// program shows. Lines that can't be understood end the run and are told to `errors`.
class Script {
 public:
  Script(HeadlessPlatform& platform, std::istream& in, std::ostream& out, std::ostream& errors);

  ScriptOutcome Run();

 private:
  void Play_Lines(const std::function<bool()>& goes_on);
  void Carry_Out(const ScriptLine& line);
  bool Set_Up(const ScriptLine& line);
  void Start();
  void Tick(int ticks);
  void Get(const ScriptLine& line);
  void Dump(const ScriptLine& line);
  void Call(const ScriptLine& line);
  void Act(const ScriptLine& line);
  void Type(const UserEvent& where, const std::string& letters);
  void Erase(const UserEvent& where, int letters);
  /// Plays an event and prints why it was refused, if it was. False then, and when it ended the
  /// program.
  bool Send(const UserEvent& event);

  HeadlessPlatform& platform_;
  std::istream& in_;
  std::ostream& out_;
  std::ostream& errors_;
  Program program_;
  bool started_ = false;
  bool end_told_ = false;
  int line_number_ = 0;
  std::string line_;
};

}  // namespace norvane
