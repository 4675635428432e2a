#pragma once

#include <QWidget>

namespace norvane {

/// A pair of arrow buttons, one above the other. A held button repeats, each repeat one step. The
/// keyboard reaches the same steps through the arrow keys of the field beside it.
class SpinArrows : public QWidget {
  Q_OBJECT

 public:
  explicit SpinArrows(QWidget* parent = nullptr);

 signals:
  /// One step up (1) or down (-1).
  void Stepped(int direction);
};

}  // namespace norvane
