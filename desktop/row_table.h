#pragma once

#include <QTableView>

namespace norvane {

/// A table that tells what a user does with its rows. It tells it at once: told later, it could
/// come in the middle of the question that the mouse opened when it was let go before.
class RowTable : public QTableView {
  Q_OBJECT

 public:
  using QTableView::QTableView;

 signals:
  /// The mouse was let go over the rows, or Delete was pressed.
  void Picked();
  void Copy_Asked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace norvane
