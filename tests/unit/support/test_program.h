#pragma once

#include <optional>
#include <sstream>
#include <string>

#include "driver/headless_platform.h"
#include "frame/program.h"
#include "screen/warmt.h"
#include "test_folder.h"

namespace norvane {

/// A whole program without a display, in a folder of its own that holds nothing but an English
/// language file. Text n of that file is "t" and the number.
class TestProgram {
 public:
  explicit TestProgram(char decimal_separator = '.');

  /// Brings the main screen to the front, as the third tick of the splash does.
  void Start();

  Module1& State() { return program.State(); }
  Warmt& Main_Screen() { return *State().forms.warmt; }

  /// What the user does; returns why it was refused, if it was.
  std::optional<std::string> Set(TextField& field, const std::string& text);
  std::optional<std::string> Click(Field& field);
  std::optional<std::string> Down(Field& field);
  std::optional<std::string> Up(Field& field);
  std::optional<std::string> Act(UserAction action, Field& field, int first = 0, int last = 0);
  std::optional<std::string> Act(UserAction action, Form& form);

  /// What the program printed since the last call.
  std::string Printed();

  TestFolder folder;
  std::ostringstream out;
  HeadlessPlatform platform;
  Program program;
};

/// An English language file whose text n is "t" and the number.
std::string Numbered_Language_File();

}  // namespace norvane
