#include "test_program.h"

#include "frame/about_form.h"

namespace norvane {

TestProgram::TestProgram(char decimal_separator)
    : platform(folder.Path(), decimal_separator, out), program(platform) {
  platform.play_modal = [](Form& form) { form.Hide(); };
  folder.Write("language.len", Numbered_Language_File());
}

void TestProgram::Start() {
  program.Main();
  for (int i = 0; i < 3; ++i) program.Tick(State().forms.about->Timer1);
}

std::optional<std::string> TestProgram::Set(TextField& field, const std::string& text) {
  return program.Dispatch({UserAction::kSetText, field.form(), &field, text});
}

std::optional<std::string> TestProgram::Click(Field& field) {
  return Act(UserAction::kClick, field);
}

std::optional<std::string> TestProgram::Down(Field& field) { return Act(UserAction::kDown, field); }

std::optional<std::string> TestProgram::Up(Field& field) { return Act(UserAction::kUp, field); }

std::optional<std::string> TestProgram::Act(UserAction action, Field& field, int first, int last) {
  return program.Dispatch({action, field.form(), &field, {}, first, last});
}

std::optional<std::string> TestProgram::Act(UserAction action, Form& form) {
  return program.Dispatch({action, form});
}

std::string TestProgram::Printed() {
  std::string printed = out.str();
  out.str("");
  return printed;
}

std::string Numbered_Language_File() {
  std::string file = "Norvane,Arial,0\r\n0,name=English-1\r\n";
  for (int number = 1; number <= 150; ++number) {
    file += std::to_string(number) + ",t" + std::to_string(number) + "\r\n";
  }
  return file;
}

}  // namespace norvane
