#include "desktop/number_edit.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QWheelEvent>

namespace norvane {
namespace {

constexpr int kWheelStep = 120;
constexpr int kWidthInDigits = 9;

bool Begins_Number(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const QChar letter = key.text().isEmpty() ? QChar() : key.text().front();
  return letter == '-' || (letter >= '0' && letter <= '9');
}

}  // namespace

NumberEdit::NumberEdit(QWidget* parent) : QLineEdit(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!Has_Steps() || !QAccessible::isActive()) return;
    QAccessibleValueChangeEvent changed(this, text);
    QAccessible::updateAccessibility(&changed);
  });
}

QRect NumberEdit::Letter(int offset) const {
  const QFontMetrics letters = fontMetrics();
  const auto width_up_to = [&](int end) { return letters.horizontalAdvance(text().left(end)); };
  // The text stands at the right, a short way off the edge.
  const int origin = cursorRect().center().x() - width_up_to(cursorPosition());
  const int left = origin + width_up_to(offset);
  return {left, cursorRect().top(), origin + width_up_to(offset + 1) - left, letters.height()};
}

QSize NumberEdit::sizeHint() const {
  const int digit = fontMetrics().horizontalAdvance('0');
  return {digit * kWidthInDigits + 2 * digit, QLineEdit::sizeHint().height()};
}

void NumberEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
    emit Stepped(event->key() == Qt::Key_Up ? 1 : -1);
    return;
  }
  if (isReadOnly() && Begins_Number(*event)) {
    emit Number_Begun(event->text());
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void NumberEdit::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  wheel_turned_ += event->angleDelta().y();
  for (; wheel_turned_ >= kWheelStep; wheel_turned_ -= kWheelStep) emit Stepped(1);
  for (; wheel_turned_ <= -kWheelStep; wheel_turned_ += kWheelStep) emit Stepped(-1);
  event->accept();
}

void NumberEdit::mouseDoubleClickEvent(QMouseEvent*) { selectAll(); }

void NumberEdit::contextMenuEvent(QContextMenuEvent* event) {
  // A menu that deletes itself would do so in the middle of its own click when the change that it
  // makes lets events run.
  const QPointer<QMenu> menu = createStandardContextMenu();
  menu->exec(event->globalPos());
  delete menu;
}

}  // namespace norvane
