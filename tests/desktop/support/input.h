#pragma once

#include <QString>
#include <Qt>

class QPoint;
class QWidget;

namespace norvane {

// What a user's hands do. All of it goes through the window that has the place or the focus, so
// that a widget which is covered, or a window that waits for a dialog, gets nothing.

/// Waits until the keyboard belongs to the window; false if that doesn't come.
[[nodiscard]] bool Comes_To_Front(const QWidget& window);

/// The middle of a widget in the coordinates of its window.
QPoint Middle(const QWidget& widget);

void Click(QWidget& widget);
void Click(QWidget& window, const QPoint& at);
void Press_Mouse(QWidget& widget);
void Release_Mouse(QWidget& widget);
/// The mouse comes from elsewhere in the window and stays over the widget.
void Hover(QWidget& widget);
void Hover(QWidget& window, const QPoint& at);

void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types letter by letter.
void Type(const QString& text);

/// Lets the program answer, lay out and paint.
void Settle();

}  // namespace norvane
