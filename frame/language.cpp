#include "frame/language.h"

#include <algorithm>

#include "calc/conversions.h"
#include "data/list_input.h"
#include "data/runtime_error.h"
#include "data/text.h"
#include "frame/lang_form.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "frame/version.h"

namespace norvane {
namespace {

constexpr const char* kEnglishFile = "language.len";
constexpr const char* kEnglishCode = "en";
constexpr int kLastSlot = LanguageTables::kSlots - 1;

/// The text number in front of a line's first comma, or that of the line before.
std::int16_t Text_Number(std::string_view line, std::int16_t before, const Locale& locale) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return before;
  try {
    return To_Int16(To_Number(line.substr(0, comma), locale));
  } catch (const RuntimeError&) {
    return before;
  }
}

/// What follows the first `mark` of a line, or the whole line without one.
std::string_view Behind(std::string_view line, char mark) {
  const std::size_t at = line.find(mark);
  return at == std::string_view::npos ? line : line.substr(at + 1);
}

void Read_Header(ListInput& input, LanguageTables& tables, std::size_t slot) {
  for (std::string* kept : {&tables.Lang_Hdr1, &tables.Lang_Hdr2, &tables.Lang_Hdr3}) {
    auto field = input.Next_Field();
    if (!field) break;
    *kept = std::move(*field);
  }
  // Fields that the file doesn't have are those of the file before.
  tables.Lang_FontName[slot] = tables.Lang_Hdr2;
  tables.Lang_Charset[slot] = tables.Lang_Hdr3;
}

void Read_Texts(ListInput& input, std::array<std::string, LanguageTables::kTexts>& texts,
                const Locale& locale) {
  std::int16_t id = 0;
  while (!input.At_End()) {
    const std::string_view line = input.Next_Line();
    const std::int16_t number = Text_Number(line, id, locale);
    if (number < 0 || number >= LanguageTables::kTexts) continue;
    id = number;
    texts[static_cast<std::size_t>(id)] = Trim(Behind(line, id == 0 ? '=' : ','));
  }
}

}  // namespace

void Find_Languages(Module1& module1) {
  module1.Lang_Index = 0;
  for (const std::string& name : module1.platform.files().List("language.l??")) {
    const bool english = Lower(name) == kEnglishFile;
    if (!english) ++module1.Lang_Index;
    Load_Language(module1, name, english ? 0 : module1.Lang_Index);
    if (module1.Lang_Index == kLastSlot) break;
  }
}

void Load_Language(Module1& module1, const std::string& File, int Slot) {
  LanguageTables& tables = module1.languages;
  const auto slot = static_cast<std::size_t>(Slot);
  tables.Lang_Code[0] = kEnglishCode;
  tables.Lang_Code[slot] = File.substr(10, 2);
  const auto file = module1.platform.files().Read(File);
  if (!file) {
    module1.Message(kTitle, "Unable to find Language file", MessageIcon::kNone,
                    MessageButtons::kOk);
    return;
  }
  ListInput input(*file);
  Read_Header(input, tables, slot);
  Read_Texts(input, tables.Lang_Text[slot], module1.Locale());
}

void Select_Start_Language(Module1& module1) {
  const std::string wanted =
      Lower(Ini_Read(module1, kSettingsFile, kInitSection, "Language", kEnglishCode));
  const auto& codes = module1.languages.Lang_Code;
  const auto found = std::find_if(codes.begin(), codes.end(), [&](const auto& code) {
    return Lower(code.value_or("")) == wanted;
  });
  module1.Lang_Index = static_cast<std::int16_t>(found - codes.begin());
  // A match in the last slot counts as none.
  if (module1.Lang_Index < kLastSlot) return;
  module1.Lang_Index = 0;
  if (!module1.platform.files().List(kEnglishFile).empty()) {
    module1.forms.lang->imgCheck(0).Set_Visible(true);
    return;
  }
  module1.Message("Quitting program",
                  "No language available: \rwww.norvane.example\r"
                  "for downloading language files.",
                  MessageIcon::kInformation, MessageButtons::kOk);
  module1.desk.Quit();
}

}  // namespace norvane
