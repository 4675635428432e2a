#pragma once

class QPainter;

namespace norvane {

/// Draws a steel sheet, bare or with a board of foam on it, into the field of an `ObjectPicture`.
void Draw_Sheet(QPainter& painter, bool insulated);

}  // namespace norvane
