#pragma once

#include <QFrame>

namespace norvane {

/// A panel with round corners that holds what belongs together. Under a light theme it has the
/// ground of entry fields, under a dark one a lighter ground, from which the fields stand out.
class Card : public QFrame {
  Q_OBJECT

 public:
  explicit Card(QWidget* parent = nullptr);

 protected:
  /// The mouse on a card isn't on the bare form.
  void mouseMoveEvent(QMouseEvent*) override {}
  void paintEvent(QPaintEvent* event) override;
};

/// A horizontal line between the rows of a card.
class CardRule : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  QSize sizeHint() const override { return {0, 1}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvane
