#include "desktop/row_table.h"

#include <QKeyEvent>

namespace norvane {

void RowTable::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    emit Picked();
  } else if (event->matches(QKeySequence::Copy)) {
    emit Copy_Asked();
  } else {
    QTableView::keyPressEvent(event);
  }
}

void RowTable::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  emit Picked();
}

}  // namespace norvane
