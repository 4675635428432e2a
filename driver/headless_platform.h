#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <iosfwd>

#include "driver/recording_spreadsheet.h"
#include "host/disk_files.h"
#include "platform/platform.h"

namespace norvane {

/// A platform without a display: it prints what the program tells, and answers from a queue.
class HeadlessPlatform : public Platform, public Display {
 public:
  HeadlessPlatform(const std::filesystem::path& folder, char decimal_separator, std::ostream& out);

  Display& display() override { return *this; }
  Files& files() override { return files_; }
  Spreadsheet& spreadsheet() override { return spreadsheet_; }
  char Decimal_Separator() const override { return decimal_separator_; }
  std::optional<std::vector<std::string>> Font_Names() const override { return fonts; }

  DisplayArea Available_Area() const override { return screen; }
  void Form_Loaded(Form&) override {}
  void Form_Unloaded(Form&) override {}
  void Run_Modal(Form& form) override { play_modal(form); }
  void Let_Events_Run() override {}
  MessageAnswer Message(const UserMessage& message) override;
  void Runtime_Error(int number, const std::string& words) override;

  RecordingSpreadsheet& Recorder() { return spreadsheet_; }

  /// Plays the script's lines while a modal form is shown.
  std::function<void(Form& form)> play_modal;
  /// The answers to the next message boxes.
  std::deque<MessageAnswer> answers;
  std::optional<std::vector<std::string>> fonts;
  DisplayArea screen{0, 0, 15360, 11520};

 private:
  MessageAnswer Take_Answer(MessageButtons buttons, bool& answered);

  DiskFiles files_;
  char decimal_separator_;
  std::ostream& out_;
  RecordingSpreadsheet spreadsheet_;
};

}  // namespace norvane
