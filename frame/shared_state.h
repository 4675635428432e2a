#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/conversions.h"
#include "frame/text_id.h"
#include "platform/platform.h"
#include "screen/model/desk.h"
#include "screen/model/form_slot.h"

namespace norvane {

class About;
class Address;
class ClsProduct;
class Lang;
class Settings;
class Total;
class Warmt;

/// The groups of the toolbar's buttons.
enum ToolGroup { kTotalGroup, kKindGroup, kModeGroup, kAlphaGroup, kLambdaGroup, kSavingGroup };

/// The forms of a program, each made at its first reference.
struct Forms {
  explicit Forms(struct Module1& module1);

  FormSlot<About> about;
  FormSlot<Warmt> warmt;
  FormSlot<Settings> settings;
  FormSlot<Lang> lang;
  FormSlot<Address> address;
  FormSlot<Total> total;
};

/// The texts of all languages that were found, a slot each. Slot 0 is English.
struct LanguageTables {
  static constexpr int kSlots = 100;
  static constexpr int kTexts = 151;

  std::array<std::optional<std::string>, kSlots> Lang_Code;  ///< such as "en"; unset: free
  std::array<std::optional<std::string>, kSlots> Lang_FontName;
  std::array<std::optional<std::string>, kSlots> Lang_Charset;  ///< a number as text
  std::vector<std::array<std::string, kTexts>> Lang_Text{kSlots};

  const std::string& Text(int slot, TextId id) const {
    return Lang_Text[static_cast<std::size_t>(slot)][static_cast<std::size_t>(id)];
  }

  /// The header fields of the file that was read last.
  std::string Lang_Hdr1;
  std::string Lang_Hdr2;
  std::string Lang_Hdr3;
};

/// The state that all screens of one program share, for the life of the program.
struct Module1 {
  explicit Module1(Platform& the_platform);
  ~Module1();
  Module1(const Module1&) = delete;
  Module1& operator=(const Module1&) = delete;

  norvane::Locale Locale() const { return {platform.Decimal_Separator()}; }

  /// The Windows character set of a slot's language, as its fonts are given it; 0 where it has
  /// none. Throws `RuntimeError` 13 when it is no number, 6 when it is beyond 16 bits.
  /// @param slot of a language that was read
  int Font_Charset(int slot) const;

  /// The character set that a slot's texts are read by: 0 where its fonts are refused theirs.
  /// @param slot of a language that was read
  int Text_Charset(int slot) const;
  /// That of the current language.
  int Text_Charset() const { return Text_Charset(Lang_Index); }
  /// That of what a field shows: its font's, or else the current language's.
  /// @param field of any form
  int Text_Charset(const Field& field) const;

  /// Shows the user a message in the current language's character set, and waits for the answer.
  /// @param title over the box
  /// @param text in bytes of that character set
  /// @param icon beside it
  /// @param buttons to answer by
  MessageAnswer Message(const std::string& title, const std::string& text, MessageIcon icon,
                        MessageButtons buttons);

  /// A text of the current language; empty where the language lacks it.
  /// @param id a numbered text
  const std::string& Text(TextId id) const { return languages.Text(Lang_Index, id); }

  Platform& platform;
  Desk desk;
  Forms forms;

  LanguageTables languages;
  std::int16_t Lang_Index = 0;  ///< the current language's slot

  float Lambda = 0;           ///< conductivity at 0 degrees Celsius, W/mK
  float Alpha = 0;            ///< surface heat-transfer coefficient, W/m2K
  std::int16_t Hr_Day = 0;    ///< operating hours a day
  std::int16_t Days = 0;      ///< operating days
  std::int16_t Mtrs = 0;      ///< m of pipe, m2 of sheet
  std::int16_t Sel_Size = 0;  ///< the kind of object, see `Kind`

  /// The pressed button of each toolbar group; of the modes 0 is heat loss, 1 condensation.
  std::array<std::int16_t, 6> Tool_Sel{};

  /// Header line, saved lines, and an empty spare element; without elements it doesn't exist.
  std::vector<std::string> Calc_List;
  /// The savings in gas (m3), oil (litres) and electricity (kWh) of the lines on the Total screen.
  double Total_Sum1 = 0;
  double Total_Sum2 = 0;
  double Total_Sum3 = 0;

  std::vector<ClsProduct> Products;
  std::vector<std::int16_t> arrGroupSizes;

  /// Address 0 to 20, field 0 to 25: the cell of address a and field f is a + 21 x f.
  static constexpr int kAddresses = 21;
  static constexpr int kAddressFields = 26;
  std::array<std::string, std::size_t{kAddresses} * kAddressFields> Address_Table;
};

}  // namespace norvane
