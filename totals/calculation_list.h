#pragma once

#include <cstddef>
#include <string>

namespace norvane {

struct Module1;

/// Empties the list of calculations and writes its header line in the current language, each
/// caption behind a tilde; a text that the language lacks is taken from slot 0.
void setHeaders(Module1& module1);

/// Appends what the main screen shows as a line, each field behind a tab. A sheet has no diameter
/// field. Throws `RuntimeError` 5 for a product that doesn't exist, and 6 for the 32,767th line.
void Fill_Calculation_list(Module1& module1, const std::string& strProductKey);

/// How many saved lines the list holds.
std::size_t Count_Saved_Lines(const Module1& module1);
bool Has_Saved_Lines(const Module1& module1);

/// Header and saved lines with a tab between the cells and a line feed behind each line; empty
/// without lines.
std::string Saved_Lines_As_Text(const Module1& module1);

}  // namespace norvane
