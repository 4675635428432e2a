#pragma once

#include <cstdint>
#include <string_view>

namespace norvane {

/// The most decimals that a result shows.
inline constexpr int kMostDecimals = 3;

/// The number that `Format` shows of `value` under a mask of so many decimals ("0", "##0.0",
/// "####0.00", "0.000"), counted in units of the last of them: 36.579 with two decimals is 3658.
/// Throws `RuntimeError` 6 for a value that isn't finite or has no 64-bit count.
/// @param value the number that is shown
/// @param decimals 0 to `kMostDecimals`
std::int64_t Shown(float value, int decimals);
std::int64_t Shown(double value, int decimals);

/// The longest text of `Write_Shown`.
inline constexpr int kLongestShown = 24;

/// Writes the text of such a count, as `Format` writes it, and returns its end.
/// @param to room for `kLongestShown` letters
/// @param shown units of the last decimal
/// @param decimals 0 to `kMostDecimals`
/// @param decimal_separator the sign before the decimals
char* Write_Shown(char* to, std::int64_t shown, int decimals, char decimal_separator);

}  // namespace norvane
