#pragma once

#include <cstdio>

#include "change_rule.h"
#include "input.h"
#include "run_program.h"

namespace norvane {

/// Where the environment variable NORVANE_FUZZ_SCRIPT is set, prints a line of the script that
/// plays the same session.
void Tell(const std::string& line);

/// A user whose every step is decided by the bytes of the fuzzer. Most steps are such as can be
/// done on the form in front; some are of any kind on any field. Behind each step the rules of the
/// screen are looked at.
class User {
 public:
  User(Input& input, RunningProgram& run);

  /// Does one step.
  void Act();
  /// Steps until the form is shown no longer; its box closes it at the end of the bytes.
  void Act_In(Form& form);
  /// A few steps while the program lets its display report what is pending.
  void Act_Meanwhile();
  void Watch(Form& form) { change_rule_.Watch(form); }

 private:
  void Act_On_Field(UserAction action);
  void Act_On_Form();
  void Act_Wildly();
  void Answer();
  void Let_Others_Write();

  Form* Form_In_Front();
  Form* Any_Form();
  Field* Choose_Field(const Form& form, UserAction action);
  bool Can_Act(UserAction action, const Field& field);
  void Give_Details(UserEvent& event);
  std::string Text_For(const TextField& field);
  void Try(const UserEvent& event);
  void Require_State();

  Input& input_;
  RunningProgram& run_;
  ChangeRule change_rule_;
  int yields_ = 0;
};

}  // namespace norvane
