#pragma once

#include <string>

namespace norvane {

class Form;

/// A part of the user's desktop in twips, 1440 to the inch, from the upper left of all its screens.
struct DisplayArea {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

enum class MessageIcon { kNone, kInformation, kExclamation, kQuestion };
enum class MessageButtons { kOk, kYesNo };
enum class MessageAnswer { kOk, kYes, kNo };

/// What the user is told or asked. `title` and `text` are bytes of the Windows character set
/// `charset`; carriage returns and line feeds end a line.
struct UserMessage {
  std::string title;
  std::string text;
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
  int charset = 0;
};

/// The user's display: where forms are shown and questions are asked. All calls come from the one
/// thread of the program, and a display reports events on that thread alone.
class Display {
 public:
  virtual ~Display() = default;

  /// What panels leave free of the screen that the user works on.
  virtual DisplayArea Available_Area() const = 0;

  /// The form has its fields, and its Load is still to run; it isn't shown yet. From here to
  /// `Form_Unloaded` the display may observe it. The form keeps ownership of all that it holds.
  /// @param form the new form
  virtual void Form_Loaded(Form& form) = 0;

  /// The form is thrown away. The display lets go of it before it returns.
  /// @param form the form that goes
  virtual void Form_Unloaded(Form& form) = 0;

  /// Reports the user's events until the form is shown no longer or the program has ended.
  /// @param form the form, shown already
  virtual void Run_Modal(Form& form) = 0;

  /// Reports the events that are pending and paints what has changed.
  virtual void Let_Events_Run() = 0;

  /// Asks or tells the user, and waits for the answer.
  /// @param message words, icon and buttons
  virtual MessageAnswer Message(const UserMessage& message) = 0;

  /// Tells the user that the program ends with a runtime error, and waits until it was read.
  /// @param number the classic number, such as 6
  /// @param words its classic words, such as "Overflow"
  virtual void Runtime_Error(int number, const std::string& words) = 0;
};

}  // namespace norvane
