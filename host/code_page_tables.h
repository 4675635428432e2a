#pragma once

#include <array>
#include <cstdint>

namespace norvane {

/// The letters of the bytes 0x80 to 0xFF of a code page; U+FFFD where it has none.
using UpperHalf = std::array<std::uint16_t, 128>;

/// The page that belongs to a Windows character set.
const UpperHalf& Code_Page_Of(int charset);

}  // namespace norvane
