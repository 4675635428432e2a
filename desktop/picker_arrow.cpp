#include "desktop/picker_arrow.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/accessible.h"

namespace norvane {
namespace {

constexpr int kWidth = 17;  // pixels
constexpr int kEdge = 2;    // of the field, which stays free

bool Opens(const QKeyEvent& key) {
  const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Down) return held == Qt::AltModifier;
  return held == Qt::NoModifier && (key.key() == Qt::Key_F2 || key.key() == Qt::Key_F4);
}

}  // namespace

PickerArrow::PickerArrow(QLineEdit& edit) : QToolButton(&edit), edit_(edit) {
  setObjectName("picker_arrow");
  setArrowType(Qt::DownArrow);
  setAutoRaise(true);
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::ArrowCursor);
  edit.setTextMargins(kWidth, 0, 0, 0);
  edit.installEventFilter(this);
}

void PickerArrow::Name_After(const QString& field, const QString& action) {
  const QString name = field + ": " + action;
  if (accessibleName() == name) return;
  Tell(*this, name);
  setToolTip(action + " (F4)");
}

bool PickerArrow::eventFilter(QObject* edit, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  if (event->type() == QEvent::KeyPress && Opens(*static_cast<QKeyEvent*>(event))) {
    emit clicked();
    return true;
  }
  return QToolButton::eventFilter(edit, event);
}

void PickerArrow::Place() { setGeometry(kEdge, kEdge, kWidth, edit_.height() - 2 * kEdge); }

}  // namespace norvane
