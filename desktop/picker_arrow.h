#pragma once

#include <QToolButton>

class QLineEdit;

namespace norvane {

/// The small arrow inside a field that opens its picker, as F4, F2 and Alt+Down in the field do. It
/// stands at the left, so that the numbers of all rows stay under one another.
class PickerArrow : public QToolButton {
  Q_OBJECT

 public:
  explicit PickerArrow(QLineEdit& edit);

  /// What a screen reader tells, and the tip: what the arrow does, to which field.
  void Name_After(const QString& field, const QString& action);

  bool eventFilter(QObject* edit, QEvent* event) override;

 private:
  void Place();

  QLineEdit& edit_;
};

}  // namespace norvane
