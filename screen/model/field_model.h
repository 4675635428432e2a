#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screen/model/field.h"

namespace norvane {

/// A field with a text that the user may type.
class TextField : public Field {
 public:
  using Field::Field;

  const std::string& Text() const { return text_; }

  /// The change rule: a text that differs raises `On_Change` inside the assignment, an equal one
  /// raises nothing, whoever assigns.
  /// @param text in the code page of its language
  void Set_Text(const std::string& text);

  bool Locked() const { return locked_; }
  void Set_Locked(bool locked) { Assign(locked_, locked, Attribute::kLocked); }

  const norvane::BackColor& BackColor() const { return back_color_; }
  void Set_BackColor(const norvane::BackColor& color) {
    Assign(back_color_, color, Attribute::kBackColor);
  }

  std::function<void()> On_Change;

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override;
  void Carry_Out(const UserEvent& event) override;

 private:
  std::string text_;
  bool locked_ = false;
  norvane::BackColor back_color_ = kSystemWindow;
};

enum class BackStyle { kTransparent, kOpaque };

/// A text that the program shows.
class CaptionField : public Field {
 public:
  using Field::Field;

  const std::string& Caption() const { return caption_; }
  void Set_Caption(const std::string& caption) { Assign(caption_, caption, Attribute::kCaption); }

  const norvane::BackColor& BackColor() const { return back_color_; }
  void Set_BackColor(const norvane::BackColor& color) {
    Assign(back_color_, color, Attribute::kBackColor);
  }

  norvane::BackStyle BackStyle() const { return back_style_; }
  void Set_BackStyle(norvane::BackStyle style) {
    Assign(back_style_, style, Attribute::kBackStyle);
  }

  bool Takes_Focus() const override { return false; }

 private:
  std::string caption_;
  norvane::BackColor back_color_ = kGrey;
  norvane::BackStyle back_style_ = BackStyle::kTransparent;
};

/// Two arrows, for a step up and a step down.
class SpinField : public Field {
 public:
  using Field::Field;

  /// One step up (1) or down (-1).
  /// @param direction 1 or -1
  virtual void Step(int direction) = 0;

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override;
  void Carry_Out(const UserEvent& event) override;
  bool Takes_Focus() const override { return false; }
};

/// A pair of arrows whose steps are the program's own.
class SpinPair : public SpinField {
 public:
  using SpinField::SpinField;

  std::function<void()> On_Down;
  std::function<void()> On_Up;

  void Step(int direction) override;
};

/// A pair of arrows that is bound to a text field: a step of 1 inside a range, and no handler of
/// its own.
class Stepper : public SpinField {
 public:
  Stepper(Form& form, std::string name, int index, TextField& buddy, int least, int most);

  const TextField& Buddy() const { return buddy_; }
  int Least() const { return least_; }
  int Most() const { return most_; }
  /// From the field's value rounded to 16 bits, cut to the range.
  /// @param direction 1 or -1
  void Step(int direction) override;

 private:
  TextField& buddy_;
  int least_;
  int most_;
};

enum class ButtonPicture { kPlain, kChosen };

/// A push button. A toolbar button shows by its picture whether it is the chosen one of its group;
/// the spare picture is where the plain one waits meanwhile.
class Button : public Field {
 public:
  using Field::Field;

  const std::string& Caption() const { return caption_; }
  void Set_Caption(const std::string& caption) { Assign(caption_, caption, Attribute::kCaption); }

  ButtonPicture Picture() const { return picture_; }
  void Lose_Selection() { Assign(picture_, spare_, Attribute::kPicture); }
  void Take_Selection() {
    spare_ = picture_;
    Assign(picture_, ButtonPicture::kChosen, Attribute::kPicture);
  }

 private:
  std::string caption_;
  ButtonPicture picture_ = ButtonPicture::kPlain;
  ButtonPicture spare_ = ButtonPicture::kPlain;
};

/// A picture, by its number in the list of pictures, or a panel of other fields.
class PictureField : public Field {
 public:
  using Field::Field;

  int Picture() const { return picture_; }
  void Set_Picture(int picture) { Assign(picture_, picture, Attribute::kPicture); }

  bool Takes_Focus() const override { return false; }

 private:
  int picture_ = 0;
};

/// A list of texts, one of which may be chosen.
class ListField : public Field {
 public:
  using Field::Field;

  const std::vector<std::string>& Items() const { return items_; }
  void Add_Item(const std::string& item);
  /// Takes all items away; none is chosen then.
  void Clear();

  /// The chosen item from 0, or -1.
  int ListIndex() const { return list_index_; }
  /// Chooses an item and raises Click. Throws `RuntimeError` 5 for an index that isn't there.
  /// @param index from 0
  void Set_ListIndex(int index);

  /// The chosen item's text, empty without one.
  std::string Text() const;

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override;
  void Carry_Out(const UserEvent& event) override;

 private:
  std::vector<std::string> items_;
  int list_index_ = -1;
};

/// A row of tabs, one of which is in front.
class Tabs : public Field {
 public:
  Tabs(Form& form, std::string name, std::vector<std::string> captions);

  int Tab() const { return tab_; }
  /// Brings a tab to the front, and raises Click when it wasn't there.
  /// @param tab from 0
  void Set_Tab(int tab);

  int Count() const { return static_cast<int>(captions_.size()); }
  const std::string& TabCaption(int tab) const;
  void Set_TabCaption(int tab, const std::string& caption);

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override;
  void Carry_Out(const UserEvent& event) override;

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

/// A clock that ticks once a second while it is enabled; the display makes the ticks.
class TickTimer : public Field {
 public:
  using Field::Field;
  static constexpr int kInterval = 1000;  ///< milliseconds

  bool Enabled() const { return enabled_; }
  void Set_Enabled(bool enabled) { Assign(enabled_, enabled, Attribute::kEnabled); }

  std::function<void()> On_Tick;

 private:
  bool enabled_ = true;
};

}  // namespace norvane
