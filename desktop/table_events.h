#pragma once

#include <QObject>

class QTableView;

namespace norvane {

/// What a user does with the rows of a table.
class TableEvents : public QObject {
  Q_OBJECT

 public:
  explicit TableEvents(QTableView& table);

 signals:
  /// The mouse was let go over the rows, or Delete was pressed.
  void Picked();
  void Copy_Asked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QTableView& table_;
};

}  // namespace norvane
