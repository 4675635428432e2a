#pragma once

#include <string>

namespace norvane {

/// A UTF-8 text as a cell of a workbook file holds it. The format spells odd letters as "_x0001_",
/// so that such a text of the user's own is spelt in its turn. A cell has room for 32,767 letters;
/// a longer text is cut and ends with "...", as one letter.
std::string Cell_Text(const std::string& text);

}  // namespace norvane
