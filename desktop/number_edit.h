#pragma once

#include <QLineEdit>
#include <functional>

namespace norvane {

/// What the numbers of a field are, for who sets them otherwise than by keys.
struct NumberSteps {
  double least = 0;
  double most = 0;
  double step = 0;
};

/// A line edit for numbers: right-aligned, selected whole by a double click, stepped by the arrow
/// keys and, with the focus, by the wheel.
class NumberEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit NumberEdit(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  /// A field without steps is a text only.
  void Give_Steps(std::function<NumberSteps()> steps) { steps_ = std::move(steps); }
  bool Has_Steps() const { return steps_ != nullptr; }
  NumberSteps Steps() const { return steps_(); }

  /// Where a letter of the text stands, in the field's own coordinates.
  QRect Letter(int offset) const;

 signals:
  /// One step up (1) or down (-1).
  void Stepped(int direction);
  /// The field is to hold this number.
  void Value_Asked_For(double value);
  /// A key that begins a number, where nothing can be typed.
  void Number_Begun(const QString& letter);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  std::function<NumberSteps()> steps_;
  int wheel_turned_ = 0;  // eighths of a degree that haven't made a step yet
};

}  // namespace norvane
