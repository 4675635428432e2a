#pragma once

#include <QWidget>

namespace norvane {

/// What a screen reader tells of a widget. An unchanged text is not told again.
inline void Tell(QWidget& widget, const QString& name, const QString& description = {}) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
  if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

}  // namespace norvane
