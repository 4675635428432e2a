#pragma once

#include <QWidget>

namespace norvane {

/// A widget that is hidden keeps its room, so that the others don't move.
inline void Keep_Room(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace norvane
