#pragma once

#include <QWidget>

namespace norvane {

/// A pair of arrow buttons, one above the other. A held button repeats, each repeat one step. The
/// keyboard reaches the same steps through the arrow keys of the field beside it.
class SpinArrows : public QWidget {
  Q_OBJECT

 public:
  explicit SpinArrows(QWidget* parent = nullptr);

  /// What a screen reader tells of the arrows: the name of the field that they step.
  void Name_After(const QString& field);

 signals:
  /// One step up (1) or down (-1).
  void Stepped(int direction);

 private:
  QWidget* up_ = nullptr;
  QWidget* down_ = nullptr;
};

}  // namespace norvane
