#pragma once

#include <cstdint>
#include <string>

#include "screen/model/field_model.h"

namespace norvane {

struct Module1;

/// Reads all language files of the program's folder into the language tables. English takes slot 0,
/// the others the slots from 1 in the order of the folder.
/// @param module1 whose tables are filled
void Find_Languages(Module1& module1);

/// Reads one language file into a slot. Lines that can't be understood have an effect all the same:
/// see the text lines of a language file in docs/not-bugs.md.
/// @param module1 whose tables are filled
/// @param File bare name in the program's folder
/// @param Slot 0 to `LanguageTables::kSlots` - 1
void Load_Language(Module1& module1, const std::string& File, int Slot);

/// Picks the language that the settings file asks for, or English; ends the program with a message
/// when there is neither.
/// @param module1 whose current language is set
void Select_Start_Language(Module1& module1);

/// Puts the current language on the main screen, the settings and the list of languages, and
/// empties the list of calculations.
/// @param module1 with the current language
void Apply_Language(Module1& module1);
void Apply_Language_Settings(Module1& module1);
void Apply_Language_List(Module1& module1);

/// The font of a language's slot. Throws `RuntimeError` 13 when its character set is no number.
/// @param module1 with the language tables
/// @param slot of a language that was read
/// @param size points
Font Language_Font(const Module1& module1, int slot, double size);

}  // namespace norvane
