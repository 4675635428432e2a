#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace norvane {

class Form;
struct UserEvent;

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

inline constexpr const char* kDefaultFontName = "Arial";

/// The character set of the font "Symbol", whose letters are Greek ones.
inline constexpr int kSymbolCharset = 2;

/// `charset` is the Windows character set that the text of the field is read by; without one it is
/// the one that the program uses for all.
struct Font {
  std::string name = kDefaultFontName;
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

  /// The field lies outside its form, where no user reaches it.
  bool out_of_reach = false;

  /// The user's click and the mouse moving over the field; unset where nothing happens.
  std::function<void()> On_Click;
  std::function<void()> On_Hover;

  /// Why the user can't do this to the field, which he sees, in free words; nothing when he can.
  /// A kind of field overrides it for the actions that are its own.
  /// @param event whose field this is
  virtual std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const;
  /// Does what the user does. The event isn't one to refuse.
  /// @param event whose field this is
  virtual void Carry_Out(const UserEvent& event);
  /// Whether the focus goes where the user acts.
  virtual bool Takes_Focus() const { return true; }

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

}  // namespace norvane
