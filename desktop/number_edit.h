#pragma once

#include <QLineEdit>

namespace norvane {

/// A line edit for numbers: right-aligned, selected whole by a double click, stepped by the arrow
/// keys and, with the focus, by the wheel.
class NumberEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit NumberEdit(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  /// One step up (1) or down (-1).
  void Stepped(int direction);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  int wheel_turned_ = 0;  // eighths of a degree that haven't made a step yet
};

}  // namespace norvane
