#pragma once

#include <string>
#include <vector>

#include "screen/model/field_model.h"

namespace norvane {

class Desk;
class Form;

/// What of a form itself has changed.
enum class FormAttribute { kCaption, kPlace, kShown, kActive, kMousePointer };

enum class MousePointer { kDefault = 0, kHourglass = 11 };

/// Whoever draws a form. Both calls come inside the assignment that made the change, so a handler
/// may still be running.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void Field_Changed(Field& field, Attribute attribute) = 0;
  virtual void Form_Changed(FormAttribute attribute) = 0;
};

/// A form as a model: its fields in the order of their making, its place on the screen in twips,
/// and whether it is shown. The display sees all of it through the observer.
class Form {
 public:
  Form(Desk& desk, std::string name, double width, double height);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }

  const std::string& Caption() const { return caption_; }
  void Set_Caption(const std::string& caption);

  std::string Tag;

  const norvane::Place& Place() const { return place_; }
  void Set_Place(const norvane::Place& place);
  void Set_Size(double width, double height);
  void Set_Position(double left, double top);
  /// Moves the form to the middle of the part of the screen that windows may lie on.
  void Centre();

  norvane::MousePointer MousePointer() const { return mouse_pointer_; }
  void Set_MousePointer(norvane::MousePointer pointer);

  bool Shown() const { return shown_; }
  bool Is_Active() const;
  bool Is_Modal() const;

  /// Shows the form and makes it the active one, with its Activate; nothing when it is active
  /// already.
  void Show();
  /// The same, and doesn't return before the form is hidden or unloaded. Throws `ProgramEnd` when
  /// the program ended meanwhile.
  void Show_Modal();
  void Hide();

  /// Whether the user can see the field: itself, its panel, and its tab in front.
  /// @param field one of the form's own
  bool Shows(const Field& field) const;

  const std::vector<Field*>& Fields() const { return fields_; }
  /// The field of that name and index, or null.
  /// @param name such as `Label4`, case and all
  /// @param index of a control array, or `Field::kNoIndex`
  Field* Find(const std::string& name, int index) const;

  /// The tabs that `Field::on_tab` counts, on a form that has them.
  const Tabs* tabs = nullptr;

  void Set_Observer(FormObserver* observer) { observer_ = observer; }

  /// Whether the user can close the form by the box on its window.
  bool has_close_box = true;

  /// Runs once, before the first reference to the form completes.
  virtual void Load() {}
  /// The form has become the active one.
  virtual void Activate() {}
  /// The form has got its size: once before the first Activate, and whenever the user gives
  /// another.
  virtual void Resize() {}
  /// The mouse moves over the form itself.
  virtual void Hover() {}
  /// The user closes the form.
  virtual void Close_Box() {}

 private:
  friend class Field;
  friend class Desk;

  void Add(Field& field) { fields_.push_back(&field); }
  void Field_Changed(Field& field, Attribute attribute);
  void Notify(FormAttribute attribute);

  Desk& desk_;
  std::string name_;
  std::string caption_;
  norvane::Place place_;
  norvane::MousePointer mouse_pointer_ = MousePointer::kDefault;
  bool shown_ = false;
  bool sized_ = false;
  std::vector<Field*> fields_;
  Field* focus_ = nullptr;  // the one that had the focus last
  FormObserver* observer_ = nullptr;
};

}  // namespace norvane
