#include "random_user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>

#include "odd_texts.h"

namespace norvane {
namespace {

// Of so many chances to end the program, one is taken.
constexpr int kChancesToEnd = 100;

QString Text_Of(int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier)) return {};
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return "\r";
    case Qt::Key_Backspace:
      return "\b";
    case Qt::Key_Delete:
      return "\x7f";
    case Qt::Key_Escape:
      return "\x1b";
    default:
      return key < Qt::Key_Escape ? QString(QChar(key)).toLower() : QString();
  }
}

}  // namespace

RandomUser::RandomUser(Chance& chance) : chance_(chance) {}

void RandomUser::Begin() {
  // A timer that is being answered doesn't come again, so every event has a timer of its own: the
  // next one comes in whatever loop the program runs meanwhile.
  next_ = std::make_unique<QBasicTimer>();
  next_->start(0, this);
}

void RandomUser::End() { next_.reset(); }

void RandomUser::Wait_For(const std::function<void()>& task) {
  const QScopedValueRollback<bool> waiting(waits_, true);
  task();
}

void RandomUser::timerEvent(QTimerEvent*) {
  if (had_enough()) {
    End();
    QCoreApplication::exit(0);
    return;
  }
  Begin();
  // What shows the files of this machine would have them renamed, overwritten and deleted by
  // hundreds.
  if (auto* files = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      files != nullptr && (files->inherits("QFileDialog") || files->inherits("QPrintDialog"))) {
    return files->reject();
  }
  // A message that comes meanwhile is answered like any other.
  if (waits_ && qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) == nullptr) {
    chance_.One_In(2) ? Resize() : Bring_To_Front();
  } else {
    Do_Something();
  }
}

void RandomUser::Do_Something() {
  struct Habit {
    int weight;
    void (RandomUser::*act)();
  };
  static constexpr std::array<Habit, 11> kHabits{{{30, &RandomUser::Press_Key},
                                                  {33, &RandomUser::Click},
                                                  {7, &RandomUser::Move_Mouse},
                                                  {6, &RandomUser::Turn_Wheel},
                                                  {6, &RandomUser::Paste},
                                                  {6, &RandomUser::Go_To_Next_Field},
                                                  {4, &RandomUser::Answer},
                                                  {4, &RandomUser::Drag},
                                                  {2, &RandomUser::Bring_To_Front},
                                                  {1, &RandomUser::Resize},
                                                  {1, &RandomUser::Close_Window}}};
  constexpr int kAll = 100;
  int rest = chance_.Below(kAll);
  for (const auto& [weight, act] : kHabits) {
    rest -= weight;
    if (rest < 0) return (this->*act)();
  }
}

void RandomUser::Press_Key() {
  static constexpr std::array kOthers{
      Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
      Qt::Key_Down,      Qt::Key_Home,     Qt::Key_End,  Qt::Key_Space, Qt::Key_PageUp,
      Qt::Key_PageDown,  Qt::Key_Menu,     Qt::Key_F1,   Qt::Key_F4,    Qt::Key_F10,
      Qt::Key_Insert,    Qt::Key_CapsLock, Qt::Key_Enter};
  static constexpr std::array kEditing{Qt::Key_A, Qt::Key_C, Qt::Key_V,
                                       Qt::Key_X, Qt::Key_Z, Qt::Key_Y};
  switch (chance_.Below(10)) {
    case 0:
    case 1:
    case 2:
    case 3:
      return Send_Key(Qt::Key_0 + chance_.Below(10));
    case 4:
      return Send_Key(chance_.One_In(2) ? Qt::Key_Period : Qt::Key_Comma,
                      chance_.One_In(2) ? Qt::KeypadModifier : Qt::NoModifier);
    case 5:
      return Send_Key(Qt::Key_Space + chance_.Below(Qt::Key_AsciiTilde - Qt::Key_Space));
    case 6:
      return Send_Key(chance_.One_Of(kEditing), Qt::ControlModifier);
    case 7:
      if (!chance_.One_In(4)) return Send_Key(0, Qt::NoModifier, Odd_Letter(chance_));
      return Send_Key(Qt::Key_A + chance_.Below(26), Qt::AltModifier);
    default:
      return Send_Key(chance_.One_Of(kOthers),
                      chance_.One_In(6) ? Qt::ShiftModifier : Qt::NoModifier);
  }
}

void RandomUser::Go_To_Next_Field() {
  if (chance_.One_In(2)) return Send_Key(Qt::Key_Tab);
  Send_Key(Qt::Key_Backtab, Qt::ShiftModifier);
}

void RandomUser::Answer() { Send_Key(chance_.One_In(2) ? Qt::Key_Escape : Qt::Key_Return); }

void RandomUser::Click() {
  QWidget* window = Some_Window();
  if (window == nullptr) return;
  QWidget* widget = Some_Widget(*window);
  if (Spares(widget)) return;
  constexpr int kSeldom = 40;
  const Qt::MouseButton button = chance_.One_In(kSeldom)   ? Qt::RightButton
                                 : chance_.One_In(kSeldom) ? Qt::MiddleButton
                                                           : Qt::LeftButton;
  const QPoint place = Some_Place(*widget);
  const QPointer<QWindow> handle = window->windowHandle();
  const int times = chance_.One_In(10) ? 2 : 1;
  // Otherwise two clicks are one double click.
  if (times == 1) mouse_time_ += QApplication::doubleClickInterval() + 1;
  for (int i = 0; i < times && handle; ++i) {
    Send_Mouse(*handle, place, QEvent::MouseButtonPress, button);
    if (handle) Send_Mouse(*handle, place, QEvent::MouseButtonRelease, button);
  }
}

void RandomUser::Move_Mouse() {
  QWidget* window = Some_Window();
  if (window == nullptr) return;
  Send_Mouse(*window->windowHandle(), Some_Place(*Some_Widget(*window)), QEvent::MouseMove,
             Qt::NoButton);
}

void RandomUser::Turn_Wheel() {
  constexpr int kNotch = 120;
  QWidget* window = Some_Window();
  if (window == nullptr) return;
  const QPoint place = Some_Place(*Some_Widget(*window));
  const QPoint turned(0, kNotch / 2 * chance_.Between(-4, 4));
  QWheelEvent event(place, window->mapToGlobal(place), {}, turned, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(window->windowHandle(), &event);
}

void RandomUser::Drag() {
  QWidget* window = Some_Window();
  if (window == nullptr) return;
  QWidget* widget = Some_Widget(*window);
  if (Spares(widget)) return;
  const QPoint from = Some_Place(*widget);
  const QPoint to = Some_Place(chance_.One_In(3) ? *window : *widget);
  mouse_time_ += QApplication::doubleClickInterval() + 1;
  const QPointer<QWindow> handle = window->windowHandle();
  Send_Mouse(*handle, from, QEvent::MouseButtonPress, Qt::LeftButton);
  constexpr int kSteps = 3;
  for (int i = 1; i <= kSteps && handle; ++i) {
    Send_Mouse(*handle, from + (to - from) * i / kSteps, QEvent::MouseMove, Qt::LeftButton);
  }
  if (handle) Send_Mouse(*handle, to, QEvent::MouseButtonRelease, Qt::LeftButton);
}

void RandomUser::Paste() {
  QGuiApplication::clipboard()->setText(chance_.One_In(kChancesToEnd) ? Runaway_Number(chance_)
                                                                      : Odd_Text(chance_));
  if (!chance_.One_In(3)) Send_Key(Qt::Key_A, Qt::ControlModifier);
  Send_Key(Qt::Key_V, Qt::ControlModifier);
}

void RandomUser::Bring_To_Front() {
  if (QWidget* window = Some_Window()) window->activateWindow();
}

void RandomUser::Resize() {
  constexpr int kLargest = 1400;
  if (QWidget* window = Some_Window()) {
    window->resize(chance_.Below(kLargest), chance_.Below(kLargest));
  }
}

void RandomUser::Close_Window() {
  QWidget* window = Some_Window();
  if (window == nullptr || (window == main_window && !chance_.One_In(kChancesToEnd))) return;
  // As Qt does with the close box of a window that waits for a dialog.
  const QWidget* dialog = QApplication::activeModalWidget();
  if (dialog != nullptr && dialog != window) return;
  window->close();
}

QWidget* RandomUser::Some_Window() {
  constexpr int kStubborn = 8;
  if (QWidget* popup = QApplication::activePopupWidget()) {
    if (!chance_.One_In(kStubborn)) return popup;
  }
  if (QWidget* dialog = QApplication::activeModalWidget()) {
    if (dialog->isVisible() && !chance_.One_In(kStubborn)) return dialog;
  }
  QList<QWidget*> shown;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowHandle() != nullptr) shown << window;
  }
  return shown.isEmpty() ? nullptr : chance_.One_Of(shown);
}

QWidget* RandomUser::Some_Widget(QWidget& window) {
  QList<QWidget*> all{&window};
  QList<QWidget*> answering;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->window() != &window || !widget->isVisible()) continue;
    all << widget;
    const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
    if (widget->isEnabled() && (button || widget->focusPolicy() != Qt::NoFocus)) {
      answering << widget;
    }
  }
  return answering.isEmpty() || chance_.One_In(4) ? chance_.One_Of(all) : chance_.One_Of(answering);
}

QPoint RandomUser::Some_Place(const QWidget& widget) {
  const QPoint place(chance_.Below(std::max(widget.width(), 1)),
                     chance_.Below(std::max(widget.height(), 1)));
  return widget.mapTo(widget.window(), place);
}

bool RandomUser::Spares(const QWidget* widget) {
  return widget != nullptr && click_ends(*widget) && !chance_.One_In(kChancesToEnd);
}

void RandomUser::Send_Key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QPointer<QWindow> window = QGuiApplication::focusWindow();
  if (!window) return Bring_To_Front();
  const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (clicks && Spares(QApplication::focusWidget())) return;
  const QString typed = text.isEmpty() ? Text_Of(key, modifiers) : text;
  qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, typed);
  if (window) qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, typed);
}

void RandomUser::Send_Mouse(QWindow& window, const QPoint& place, QEvent::Type type,
                            Qt::MouseButton button) {
  const bool down = type != QEvent::MouseButtonRelease;
  const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
  qt_handleMouseEvent(&window, place, window.mapToGlobal(place),
                      down ? Qt::MouseButtons(button) : Qt::NoButton, changed, type, Qt::NoModifier,
                      ++mouse_time_);
}

}  // namespace norvane
