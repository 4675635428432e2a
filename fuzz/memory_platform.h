#pragma once

#include <functional>
#include <ostream>

#include "driver/headless_platform.h"
#include "memory_files.h"

namespace norvane {

/// The headless platform with its folder in memory and nobody to print to. It holds the program to
/// what it promises a display: known errors only, and nothing behind the last one.
class MemoryPlatform : public HeadlessPlatform {
 public:
  explicit MemoryPlatform(char decimal_separator);

  Files& files() override { return folder; }
  Spreadsheet& spreadsheet() override { return *sheet; }

  void Form_Loaded(Form& form) override;
  void Let_Events_Run() override;
  MessageAnswer Message(const UserMessage& message) override;
  void Runtime_Error(int number, const std::string& words) override;

  MemoryFiles folder;
  RecordingSpreadsheet recorder;
  Spreadsheet* sheet = &recorder;

  /// What happens besides, where a fuzzer sets it: a form is there, the display reports what is
  /// pending, a message box stands open.
  std::function<void(Form& form)> on_form_loaded;
  std::function<void()> on_pending_events;
  std::function<void()> on_message;

  /// The number of the runtime error that ended the program, or 0.
  int error = 0;

 private:
  MemoryPlatform(char decimal_separator, std::ostream& nowhere);
};

/// An English language file whose text n is "t" and the number.
std::string Numbered_Language_File();

}  // namespace norvane
