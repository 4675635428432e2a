#pragma once

#include <QColor>

namespace norvane {

/// The program's green, that of the band at the foot of the main screen.
inline const QColor kAccent(105, 176, 17);

/// The materials of the pictures.
inline const QColor kSteel(112, 124, 138);
inline const QColor kCopper(190, 106, 52);
inline const QColor kPlastic(150, 152, 156);
inline const QColor kFoam(74, 79, 84);

}  // namespace norvane
