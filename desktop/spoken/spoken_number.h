#pragma once

#include <QAccessibleWidget>

namespace norvane {

class NumberEdit;

/// A number field as a text and, where it has steps, as a value with limits. Whoever sets the one
/// or the other, or steps, is answered before the program is told.
class SpokenNumber : public QAccessibleWidget,
                     public QAccessibleTextInterface,
                     public QAccessibleEditableTextInterface,
                     public QAccessibleValueInterface {
 public:
  explicit SpokenNumber(NumberEdit* edit);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text part) const override;
  void setText(QAccessible::Text part, const QString& text) override;

  QStringList actionNames() const override;
  void doAction(const QString& action) override;

  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  QString text(int start, int end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

 private:
  NumberEdit& Edit() const;
};

}  // namespace norvane
