#include "frame/settings_file.h"

#include "calc/conversions.h"
#include "data/private_profile.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

constexpr std::size_t kBufferSize = 255;

std::int16_t Read_Number(Module1& module1, const std::string& Key, const std::string& Default) {
  return To_Int16(Val(Ini_Read(module1, kSettingsFile, kSettingSection, Key, Default)));
}

}  // namespace

std::string Ini_Read(Module1& module1, const std::string& File, const std::string& Section,
                     const std::string& Key, const std::string& Default) {
  if (Key.empty() || Section.empty() || Default.empty()) return Default;
  const auto file = module1.platform.files().Read(File);
  if (!file) return Default;
  std::string value = Get_Private_Profile_String(*file, Section, Key).value_or(Default);
  // An empty value leaves the whole buffer of zeros standing.
  if (value.empty()) return std::string(kBufferSize, '\0');
  return value.substr(0, kBufferSize - 1);
}

void Ini_Write(Module1& module1, const std::string& File, const std::string& Section,
               const std::string& Key, const std::string& Value) {
  if (File.empty()) return;
  if (Key.empty() || Section.empty()) {
    module1.Message("Ini_Write", "Error - validation, write INI-file", MessageIcon::kExclamation,
                    MessageButtons::kOk);
    return;
  }
  module1.platform.files().Rewrite(File, [&](const std::string& file) {
    return Write_Private_Profile_String(file, Section, Key, Value);
  });
}

void Read_Settings(Module1& module1) {
  module1.Hr_Day = Read_Number(module1, "Hr_Day", "24");
  module1.Days = Read_Number(module1, "Days", "30");
}

}  // namespace norvane
