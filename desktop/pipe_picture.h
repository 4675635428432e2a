#pragma once

class QPainter;

namespace norvane {

/// Draws a pipe in its insulation into the field of an `ObjectPicture`: family 0 steel, 1 copper,
/// 2 plastic; thickness class 0 to 5.
void Draw_Pipe(QPainter& painter, int family, int thickness_class);

}  // namespace norvane
