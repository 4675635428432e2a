#include "desktop/spoken/spoken_number.h"

#include <algorithm>

#include "calc/conversions.h"
#include "desktop/number_edit.h"

namespace norvane {

SpokenNumber::SpokenNumber(NumberEdit* edit) : QAccessibleWidget(edit) {}

NumberEdit& SpokenNumber::Edit() const { return *static_cast<NumberEdit*>(widget()); }

void* SpokenNumber::interface_cast(QAccessible::InterfaceType type) {
  switch (type) {
    case QAccessible::TextInterface:
      return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
      return static_cast<QAccessibleEditableTextInterface*>(this);
    case QAccessible::ValueInterface:
      return Edit().Has_Steps() ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
    default:
      return QAccessibleWidget::interface_cast(type);
  }
}

QAccessible::Role SpokenNumber::role() const {
  return Edit().Has_Steps() ? QAccessible::SpinBox : QAccessible::EditableText;
}

QAccessible::State SpokenNumber::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = Edit().isReadOnly();
  state.editable = !Edit().isReadOnly();
  state.selectableText = true;
  return state;
}

QString SpokenNumber::text(QAccessible::Text part) const {
  return part == QAccessible::Value ? Edit().text() : QAccessibleWidget::text(part);
}

void SpokenNumber::setText(QAccessible::Text part, const QString& text) {
  if (part != QAccessible::Value) return QAccessibleWidget::setText(part, text);
  replaceText(0, characterCount(), text);
}

// Steps

QStringList SpokenNumber::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (Edit().Has_Steps()) names << increaseAction() << decreaseAction();
  return names;
}

void SpokenNumber::doAction(const QString& action) {
  if (action != increaseAction() && action != decreaseAction()) {
    return QAccessibleWidget::doAction(action);
  }
  const int direction = action == increaseAction() ? 1 : -1;
  NumberEdit* edit = &Edit();
  QMetaObject::invokeMethod(
      edit, [edit, direction] { emit edit->Stepped(direction); }, Qt::QueuedConnection);
}

QVariant SpokenNumber::currentValue() const { return Val(Edit().text().toStdString()); }

void SpokenNumber::setCurrentValue(const QVariant& value) {
  NumberEdit* edit = &Edit();
  const double number = value.toDouble();
  QMetaObject::invokeMethod(
      edit, [edit, number] { emit edit->Value_Asked_For(number); }, Qt::QueuedConnection);
}

QVariant SpokenNumber::maximumValue() const { return Edit().Steps().most; }

QVariant SpokenNumber::minimumValue() const { return Edit().Steps().least; }

QVariant SpokenNumber::minimumStepSize() const { return Edit().Steps().step; }

// Text

int SpokenNumber::selectionCount() const { return Edit().hasSelectedText() ? 1 : 0; }

void SpokenNumber::selection(int, int* start, int* end) const {
  *start = std::max(Edit().selectionStart(), 0);
  *end = *start + Edit().selectionLength();
}

void SpokenNumber::addSelection(int start, int end) { setSelection(0, start, end); }

void SpokenNumber::removeSelection(int) { Edit().deselect(); }

void SpokenNumber::setSelection(int, int start, int end) {
  Edit().setSelection(start, end - start);
}

int SpokenNumber::cursorPosition() const { return Edit().cursorPosition(); }

void SpokenNumber::setCursorPosition(int position) { Edit().setCursorPosition(position); }

QString SpokenNumber::text(int start, int end) const {
  return Edit().text().mid(start, end - start);
}

int SpokenNumber::characterCount() const { return static_cast<int>(Edit().text().size()); }

QRect SpokenNumber::characterRect(int offset) const {
  if (offset < 0 || offset >= characterCount()) return {};
  const QRect letter = Edit().Letter(offset);
  return {Edit().mapToGlobal(letter.topLeft()), letter.size()};
}

int SpokenNumber::offsetAtPoint(const QPoint& point) const {
  for (int offset = 0; offset < characterCount(); ++offset) {
    if (characterRect(offset).contains(point)) return offset;
  }
  return -1;
}

void SpokenNumber::scrollToSubstring(int start, int) { Edit().setCursorPosition(start); }

QString SpokenNumber::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void SpokenNumber::deleteText(int start, int end) { replaceText(start, end, {}); }

void SpokenNumber::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void SpokenNumber::replaceText(int start, int end, const QString& text) {
  if (Edit().isReadOnly()) return;
  Edit().setText(Edit().text().replace(start, end - start, text));
}

}  // namespace norvane
