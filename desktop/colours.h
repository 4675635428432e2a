#pragma once

#include <QColor>

namespace norvane {

/// The program's green, that of the band at the foot of the main screen.
inline constexpr QColor kAccent(105, 176, 17);
/// The same for lines and small shapes, on a light ground; `kAccentLight` on a dark one.
inline constexpr QColor kAccentLine(82, 146, 8);
inline constexpr QColor kAccentLight(151, 207, 70);
inline constexpr QColor kAccentDark(58, 108, 6);
/// Words on the green, under every theme of the desktop.
inline constexpr QColor kInkOnAccent(14, 26, 2);

/// The ground of the splash screen and of the list of languages, from top to foot; light under
/// every theme of the desktop.
inline constexpr QColor kGroundTop(253, 254, 251);
inline constexpr QColor kGround(228, 238, 218);

/// The materials of the pictures: as they are, towards the light and turned away from it.
inline constexpr QColor kSteelLight(222, 231, 240);
inline constexpr QColor kSteelBright(176, 190, 205);
inline constexpr QColor kSteel(119, 136, 155);
inline constexpr QColor kSteelShade(52, 63, 77);
inline constexpr QColor kCopperLight(255, 214, 172);
inline constexpr QColor kCopper(208, 115, 56);
inline constexpr QColor kCopperShade(118, 50, 16);
inline constexpr QColor kPlasticLight(231, 232, 232);
inline constexpr QColor kPlastic(197, 199, 200);
inline constexpr QColor kPlasticShade(124, 127, 130);
inline constexpr QColor kFoamLight(118, 125, 131);
inline constexpr QColor kFoam(66, 71, 76);
inline constexpr QColor kFoamShade(38, 42, 46);

/// The foam where it is cut, and the cells that the cut opens.
inline constexpr QColor kFoamCutLight(150, 156, 160);
inline constexpr QColor kFoamCut(98, 104, 109);
inline constexpr QColor kFoamCell(54, 58, 63);
/// The foam's outline: as far from a white ground as from a dark one.
inline constexpr QColor kFoamRim(132, 139, 145);

/// Inside a pipe.
inline constexpr QColor kBore(23, 25, 29);

/// The coloured parts of the toolbar's signs, on light grounds and on dark ones.
inline constexpr QColor kHeat(205, 72, 14);
inline constexpr QColor kHeatDark(176, 58, 8);  // for texts, which are thin
inline constexpr QColor kHeatOnDark(255, 138, 70);
inline constexpr QColor kWater(36, 116, 190);
inline constexpr QColor kWaterOnDark(96, 172, 238);
inline constexpr QColor kWaterGlint(222, 240, 253);
inline constexpr QColor kFoamRimOnDark(172, 178, 183);
inline constexpr QColor kCoin(240, 192, 58);
inline constexpr QColor kCoinLine(146, 106, 10);

}  // namespace norvane
