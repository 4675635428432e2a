#include "run_program.h"

#include "frame/about_form.h"
#include "require.h"

namespace norvane {
namespace {

constexpr int kTicksOfTheSplash = 3;

}  // namespace

RunningProgram::RunningProgram(char decimal_separator)
    : platform(decimal_separator), program(platform) {
  platform.play_modal = [this](Form& form) { Close(form); };
}

void RunningProgram::Start() {
  program.Main();
  Wait();
  Require(Ended() || forms().warmt.Get().Shown(), "the third tick shows the main screen");
}

void RunningProgram::Wait() {
  for (int i = 0; i < kTicksOfTheSplash; ++i) Tick();
}

void RunningProgram::Tick() {
  if (!Ended() && forms().about.Loaded()) program.Tick(forms().about->Timer1);
}

void RunningProgram::Click(Field& field) {
  if (!Ended()) program.Dispatch({UserAction::kClick, field.form(), &field});
}

void RunningProgram::Close(Form& form) {
  if (!Ended()) program.Dispatch({UserAction::kCloseBox, form});
}

void RunningProgram::Require_Order() {
  Require(program.Failed() == (platform.error != 0), "a program that failed has told its error");
  if (!Ended()) {
    Require(platform.error == 0, "a runtime error ends the program");
    return;
  }
  if (!forms().warmt.Loaded()) return;
  Form& form = forms().warmt.Get();
  Require(program.Dispatch({UserAction::kActivate, form}).has_value(),
          "a program that ended refuses");
}

}  // namespace norvane
