#pragma once

#include <memory>
#include <vector>

#include "platform/display.h"

namespace norvane {

class Field;
class Form;

/// Thrown through whatever handlers are running when the program ends; `Program` catches it.
struct ProgramEnd {};

/// The forms of one program as they lie on the user's screen: which are shown, in which order,
/// which is the active one, and which field has the focus.
class Desk {
 public:
  explicit Desk(Display& display);
  ~Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  DisplayArea Available_Area() const { return display_.Available_Area(); }

  /// The form in front, or null when none is shown.
  Form* Active() const { return shown_.empty() ? nullptr : shown_.back(); }
  /// The form that alone takes events now, or null.
  Form* Modal() const { return modal_.empty() ? nullptr : modal_.back(); }
  bool Is_Modal(const Form& form) const;

  void Show(Form& form);
  void Show_Modal(Form& form);
  void Hide(Form& form);

  /// A form was created, or is thrown away. A form that was thrown away lives on until
  /// `Forget_Unloaded`, since the handler that unloaded it may be its own.
  /// @param form that was created, or that is thrown away
  void Loaded(Form& form);
  void Unload(std::unique_ptr<Form> form);
  void Forget_Unloaded();

  /// Lets the display report what is pending. Throws `ProgramEnd` when that ended the program.
  void Let_Events_Run();

  /// The field that has the focus, or null. When a form goes, it is the field that had it in the
  /// form that is then in front.
  Field* Focus() const { return focus_; }
  /// Throws `RuntimeError` 5 when the user can't see the field.
  /// @param field of a form that is shown
  void Set_Focus(Field& field);

  /// No form takes events any more.
  void End() { ended_ = true; }
  /// The same, at once: throws `ProgramEnd` through all that is running.
  [[noreturn]] void Quit();
  bool Ended() const { return ended_; }

 private:
  void Make_Active(Form& form);
  void Take_Away(Form& form);
  void Give_Back_Focus();
  void Require_Running() const;

  Display& display_;
  std::vector<Form*> shown_;  // the active form last
  std::vector<Form*> modal_;
  std::vector<std::unique_ptr<Form>> unloaded_;
  Field* focus_ = nullptr;
  bool ended_ = false;
};

}  // namespace norvane
