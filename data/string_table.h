#pragma once

#include <string_view>

namespace norvane {

/// The program's own numbered texts. Numbers in them are texts too, with a point, and are read
/// with `Val` where they are used.
///
/// | Ids | Texts |
/// |---|---|
/// | 101, 110, 300 | carried, read by nobody |
/// | 200 to 202 | how many product groups there are, and how many products each holds |
/// | 401, 402 | how many rows and columns the dew-point table has |
/// | 1000 to 2061 | the product catalogue: group, two digits of row, 0 the name or 1 lambda |
/// | 10000 to 12416 | the dew-point table: 10000 + 100 x row + column, row 0 its headings |
///
/// Throws `RuntimeError` 9 for an id that the table doesn't hold.
/// @param id the number of a text
std::string_view String_Table(int id);

}  // namespace norvane
