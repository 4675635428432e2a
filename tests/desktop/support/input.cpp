#include "input.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QSinglePointEvent>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace norvane {
namespace {

QWindow* Window_Of(const QWidget& widget) { return widget.window()->windowHandle(); }

QWindow* Focused_Window() {
  if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; }, 3000)) {
    ADD_FAILURE() << "no window has the focus";
  }
  return QGuiApplication::focusWindow();
}

bool Waits_For_Dialog(const QWidget& window) {
  const QWidget* dialog = QApplication::activeModalWidget();
  return dialog != nullptr && dialog != &window;
}

/// As the window manager does with a window that is clicked.
void Bring_To_Front(QWidget& window) {
  if (QApplication::activeWindow() == &window) return;
  // From a dialog to the window that it belongs to Qt moves the focus by itself, and an older event
  // than the window manager's last would be passed over.
  QWindow* focused = QGuiApplication::focusWindow();
  QWindow* owner = focused == nullptr ? nullptr : focused->transientParent();
  if (owner != nullptr) focused->setTransientParent(nullptr);
  window.activateWindow();
  if (owner != nullptr) focused->setTransientParent(owner);
  EXPECT_TRUE(Comes_To_Front(window)) << "the window doesn't come to the front";
}

/// Notices when the mouse has come to its place in a window.
class ArrivalOfMouse : public QObject {
 public:
  ArrivalOfMouse(QWindow& window, const QPoint& place) : place_(place) {
    window.installEventFilter(this);
  }

  bool Seen() const { return seen_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
      seen_ = static_cast<QSinglePointEvent*>(event)->globalPosition().toPoint() == place_;
    }
    return false;
  }

 private:
  QPoint place_;
  bool seen_ = false;
};

}  // namespace

bool Comes_To_Front(const QWidget& window) {
  // Qt's own wait takes a dialog for active already when its owner is.
  constexpr int kLongest = 5000;  // milliseconds
  return QTest::qWaitFor(
      [&] { return QApplication::activeWindow() == &window && window.windowHandle()->isExposed(); },
      kLongest);
}

QPoint Middle(const QWidget& widget) {
  return widget.mapTo(widget.window(), widget.rect().center());
}

void Click(QWidget& widget) { Click(*widget.window(), Middle(widget)); }

void Click(QWidget& window, const QPoint& at) {
  if (!Waits_For_Dialog(window)) Bring_To_Front(window);
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
}

void Press_Mouse(QWidget& widget) {
  QTest::mousePress(Window_Of(widget), Qt::LeftButton, Qt::NoModifier, Middle(widget));
}

void Release_Mouse(QWidget& widget) {
  QTest::mouseRelease(Window_Of(widget), Qt::LeftButton, Qt::NoModifier, Middle(widget));
}

void Hover(QWidget& widget) { Hover(*widget.window(), Middle(widget)); }

void Hover(QWidget& window, const QPoint& at) {
  // The pointer of the display itself moves, since a window hears from the display alone that the
  // mouse comes in.
  const QPoint to = window.mapToGlobal(at);
  QCursor::setPos(to + QPoint(1, 0));
  const ArrivalOfMouse arrival(*window.windowHandle(), to);
  QCursor::setPos(to);
  constexpr int kLongest = 5000;  // milliseconds
  EXPECT_TRUE(QTest::qWaitFor([&] { return arrival.Seen() || Waits_For_Dialog(window); }, kLongest))
      << "the mouse doesn't arrive";
}

void Press(int key, Qt::KeyboardModifiers modifiers) {
  if (QWindow* window = Focused_Window()) {
    QTest::keyClick(window, static_cast<Qt::Key>(key), modifiers);
  }
}

void Type(const QString& text) {
  for (const QChar letter : text) {
    if (QWindow* window = Focused_Window()) QTest::keyClick(window, letter.toLatin1());
  }
}

void Settle() {
  // A little longer than the clock by which windows are painted.
  constexpr int kPainted = 12;
  QTest::qWait(kPainted);
}

}  // namespace norvane
