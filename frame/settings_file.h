#pragma once

#include <string>

namespace norvane {

struct Module1;

/// The program's settings file, and its sections.
inline constexpr const char* kSettingsFile = "norvane.ini";
inline constexpr const char* kInitSection = "Init";
inline constexpr const char* kSettingSection = "Setting";

/// The value of a key of a settings file in the program's folder, at most 254 letters. `Default`
/// stands in for a missing file, section or key, and when section, key or default are empty. A key
/// that is there without a value gives 255 zero characters, not the default.
/// @param module1 of the program
/// @param File bare name in the program's folder
/// @param Section matched without regard to case
/// @param Key matched without regard to case
/// @param Default what stands in
std::string Ini_Read(Module1& module1, const std::string& File, const std::string& Section,
                     const std::string& Key, const std::string& Default);

/// Sets a key. An empty `File` is passed over; an empty `Section` or `Key` shows a message.
/// @param module1 of the program
/// @param File bare name in the program's folder
/// @param Section made where it isn't there
/// @param Key made where it isn't there
/// @param Value as it is written
void Ini_Write(Module1& module1, const std::string& File, const std::string& Section,
               const std::string& Key, const std::string& Value);

/// Reads `Hr_Day` and `Days`. Throws `RuntimeError` 6 for a number beyond 16 bits.
/// @param module1 whose hours and days are set
void Read_Settings(Module1& module1);

}  // namespace norvane
