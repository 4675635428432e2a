#pragma once

#include <QAbstractButton>
#include <functional>

class QPainter;

namespace norvane {

/// What a picture button shows.
enum class ToolSign {
  kTotal,
  kSteelPipe,
  kCopperTube,
  kMetricPipe,
  kSheet,
  kHeatLoss,
  kCondensation,
  kAlpha,
  kNewLambda,
  kLambda038,
  kLambda040,
  kSaving,
  kSpreadsheet,
};

/// A picture button; the chosen one of a group stands out by its ground and frame.
class ToolButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ToolButton(ToolSign sign, QWidget* parent = nullptr);

  QSize sizeHint() const override;

 signals:
  void Moved_Over();  ///< the mouse moves over the button
  void Focus_Came();  ///< by the keyboard
  void Focus_Went();  ///< to another widget of the window

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  /// The program alone decides which button is the chosen one.
  void nextCheckState() override {}

 private:
  ToolSign sign_;
};

/// Draws a sign into a square of `size` by `size`; `ink` is the colour of lines and letters.
void Draw_Sign(QPainter& painter, ToolSign sign, qreal size, const QColor& ink);

}  // namespace norvane
