#pragma once

#include <cmath>

namespace norvane {

/// A twip is a 1440th of an inch; the desktop counts 96 pixels to the inch, whatever its scale.
inline constexpr double kTwipsPerPixel = 15;

inline int To_Pixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }
inline double To_Twips(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace norvane
