#pragma once

#include <QPushButton>
#include <QRectF>
#include <QToolButton>

class QPainter;

namespace norvane {

// Buttons that paint themselves look the same under every style of the desktop. Here is what they
// have in common, and those without a frame.

/// The radius of their corners.
inline constexpr qreal kButtonCorner = 5;

/// Where a frame of the width `line` runs along the edges of a widget.
QRectF Frame_Of(const QWidget& widget, qreal line);

/// A veil in the colour of the ink while the mouse is on a button, a stronger one while it is down.
void Draw_Touch(QPainter& painter, const QAbstractButton& button, const QRectF& frame,
                const QColor& ink);

/// The fine line inside `frame` by which a button tells that it has the focus; `line` is its width.
void Draw_Focus(QPainter& painter, const QAbstractButton& button, const QRectF& frame,
                const QColor& ink, qreal line);

/// A button that is its text alone, on the left.
class TextButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The cross in the corner of a form, by which the mouse closes it.
class CloseCross : public QToolButton {
  Q_OBJECT

 public:
  explicit CloseCross(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvane
