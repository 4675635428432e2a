#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvane {

class Form;

/// What of a field has changed, for its form's observer.
enum class Attribute {
  kText,
  kCaption,
  kVisible,
  kLocked,
  kBackColor,
  kBackStyle,
  kFont,
  kPicture,
  kItems,
  kListIndex,
  kTab,
  kCells,
  kRow,
  kPlace,
  kEnabled,
  kFocus,
};

/// A colour of the screen, or the colour that the platform gives to entry fields.
struct BackColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool system = false;

  bool operator==(const BackColor&) const = default;
};

inline constexpr BackColor kSystemWindow{0, 0, 0, true};
inline constexpr BackColor kGrey{224, 224, 224};
inline constexpr BackColor kRed{255, 0, 0};
inline constexpr BackColor kGreen{17, 176, 105};

/// `charset` is the Windows character set that the text of the field is read by; without one it is
/// that of the current language.
struct Font {
  std::string name = "Arial";
  double size = 9;  ///< points
  bool bold = false;
  std::optional<int> charset;

  bool operator==(const Font&) const = default;
};

/// Position inside the form or panel, and size, in twips.
struct Place {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Place&) const = default;
};

/// A named control of a form, or an element of a control array. Setting an attribute tells the
/// form's observer when the value differs, and does nothing otherwise.
class Field {
 public:
  static constexpr int kNoIndex = -1;

  Field(Form& form, std::string name, int index = kNoIndex);
  virtual ~Field();
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;

  Form& form() const { return form_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }

  bool Visible() const { return visible_; }
  void Set_Visible(bool visible) { Assign(visible_, visible, Attribute::kVisible); }

  const norvane::Font& Font() const { return font_; }
  void Set_Font(const norvane::Font& font) { Assign(font_, font, Attribute::kFont); }
  void Set_Bold(bool bold) { Assign(font_.bold, bold, Attribute::kFont); }

  const norvane::Place& Place() const { return place_; }
  void Set_Place(const norvane::Place& place) { Assign(place_, place, Attribute::kPlace); }

  /// The panel that the field lies in, and the tab of the form's tabs that shows it, if any.
  const Field* panel = nullptr;
  std::optional<int> on_tab;

  /// The user's click and the mouse moving over the field; unset where nothing happens.
  std::function<void()> On_Click;
  std::function<void()> On_Hover;

 protected:
  void Notify(Attribute attribute);

  template <class T>
  void Assign(T& held, const T& value, Attribute attribute) {
    if (held == value) return;
    held = value;
    Notify(attribute);
  }

 private:
  Form& form_;
  std::string name_;
  int index_;
  bool visible_ = true;
  norvane::Font font_;
  norvane::Place place_;
};

/// A field with a text that the user may type.
class TextField : public Field {
 public:
  using Field::Field;

  const std::string& Text() const { return text_; }

  /// The change rule: a text that differs raises `On_Change` inside the assignment, an equal one
  /// raises nothing, whoever assigns.
  void Set_Text(const std::string& text);

  bool Locked() const { return locked_; }
  void Set_Locked(bool locked) { Assign(locked_, locked, Attribute::kLocked); }

  const norvane::BackColor& BackColor() const { return back_color_; }
  void Set_BackColor(const norvane::BackColor& color) {
    Assign(back_color_, color, Attribute::kBackColor);
  }

  std::function<void()> On_Change;

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

 private:
  std::string caption_;
  norvane::BackColor back_color_ = kGrey;
  norvane::BackStyle back_style_ = BackStyle::kTransparent;
};

/// A pair of buttons; each click is one step.
class SpinPair : public Field {
 public:
  using Field::Field;

  std::function<void()> On_Down;
  std::function<void()> On_Up;
};

enum class ButtonPicture { kPlain, kChosen };

/// A push button. A toolbar button shows by its picture whether it is the chosen one of its group;
/// the spare picture is where the plain one waits meanwhile.
class Button : public Field {
 public:
  using Field::Field;

  const std::string& Caption() const { return caption_; }
  void Set_Caption(const std::string& caption) { Assign(caption_, caption, Attribute::kCaption); }

  /// The number of the text that tells what a toolbar button does; 0 for other buttons.
  int tooltip_text = 0;

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
  void Set_ListIndex(int index);

  /// The chosen item's text, empty without one.
  std::string Text() const;

 private:
  std::vector<std::string> items_;
  int list_index_ = -1;
};

/// A spin pair that is bound to a text field: a step of 1 inside a range, and no handler of its
/// own.
class Stepper : public Field {
 public:
  Stepper(Form& form, std::string name, int index, TextField& buddy, int least, int most);

  const TextField& Buddy() const { return buddy_; }
  /// One step up (1) or down (-1) from the field's value rounded to 16 bits, cut to the range.
  void Step(int direction);

 private:
  TextField& buddy_;
  int least_;
  int most_;
};

/// A row of tabs, one of which is in front.
class Tabs : public Field {
 public:
  Tabs(Form& form, std::string name, std::vector<std::string> captions);

  int Tab() const { return tab_; }
  /// Brings a tab to the front, and raises Click when it wasn't there.
  void Set_Tab(int tab);

  int Count() const { return static_cast<int>(captions_.size()); }
  const std::string& TabCaption(int tab) const;
  void Set_TabCaption(int tab, const std::string& caption);

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
