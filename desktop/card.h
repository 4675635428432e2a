#pragma once

#include <QFrame>

namespace norvane {

/// A panel on the ground of entry fields, with round corners, that holds what belongs together.
class Card : public QFrame {
  Q_OBJECT

 public:
  explicit Card(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvane
