#include "desktop/table_events.h"

#include <QKeyEvent>
#include <QTableView>
#include <QTimer>

namespace norvane {

TableEvents::TableEvents(QTableView& table) : QObject(&table), table_(table) {
  table.installEventFilter(this);
  table.viewport()->installEventFilter(this);
}

bool TableEvents::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_.viewport() && event->type() == QEvent::MouseButtonRelease) {
    // When the table itself has taken in the release.
    QTimer::singleShot(0, this, &TableEvents::Picked);
  }
  if (watched == &table_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Delete) {
      emit Picked();
      return true;
    }
    if (key->matches(QKeySequence::Copy)) {
      emit Copy_Asked();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvane
