#pragma once

#include <optional>

#include "desktop/form_view.h"

namespace norvane {

/// The window of a dialog that brings its own cross to close it, and so has no frame with a second
/// one. It is dragged by its ground.
class BareView : public FormView {
  Q_OBJECT

 public:
  BareView(Desktop& desktop, Form& form);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::optional<QPoint> held_at_;  ///< where on the window the mouse holds it
};

}  // namespace norvane
