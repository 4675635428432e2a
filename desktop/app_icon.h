#pragma once

#include <QByteArray>
#include <QIcon>

class QPainter;

namespace norvane {

/// The sizes in pixels that desktops ask for.
inline constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

/// The program's icon, an insulated pipe seen from its end, in a square of `size` by `size`.
void Draw_App_Icon(QPainter& painter, qreal size);

/// The same as an SVG file.
QByteArray App_Icon_Svg();

/// The same in all of `kIconSizes`.
QIcon App_Icon();

}  // namespace norvane
