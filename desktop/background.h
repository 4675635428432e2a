#pragma once

#include <QSize>

class QPainter;

namespace norvane {

/// The picture behind the splash screen and the list of languages: an insulated pipe on a light
/// ground. `strength` from 0 to 1 is how strongly the pipe shows.
void Draw_Background(QPainter& painter, const QSize& size, qreal strength);

}  // namespace norvane
