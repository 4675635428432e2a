#pragma once

#include <QBasicTimer>
#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QString>
#include <functional>
#include <memory>

#include "chance.h"

class QPointingDevice;
class QWidget;
class QWindow;

namespace norvane {

/// A user who does anything at all, whatever window is open, as fast as the program takes it: an
/// event each time that the event loop runs, also in that of a dialog or a message box. The events
/// come in at the windows, as those of the display do.
class RandomUser : public QObject {
 public:
  explicit RandomUser(Chance& chance);

  /// Before every event; true when there is to be no other.
  std::function<bool()> had_enough;
  /// Whether a click on a widget ends the program, which this user does rarely.
  std::function<bool(const QWidget& widget)> click_ends;
  /// The window whose close box ends the program.
  QWidget* main_window = nullptr;

  void Begin();
  void End();
  /// Hands off keys and mouse until `task` is done. Windows can still be resized and activated,
  /// which is between the user and the window manager.
  void Wait_For(const std::function<void()>& task);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Do_Something();

  void Press_Key();
  void Go_To_Next_Field();
  void Answer();
  void Click();
  void Move_Mouse();
  void Turn_Wheel();
  void Drag();
  void Paste();
  void Bring_To_Front();
  void Resize();
  void Close_Window();

  QWidget* Some_Window();
  QWidget* Some_Widget(QWidget& window);
  QPoint Some_Place(const QWidget& widget);
  bool Spares(const QWidget* widget);
  void Send_Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                const QString& text = QString());
  void Send_Mouse(QWindow& window, const QPoint& place, QEvent::Type type, Qt::MouseButton button);

  Chance& chance_;
  std::unique_ptr<QBasicTimer> next_;
  bool waits_ = false;
  int mouse_time_ = 0;
};

}  // namespace norvane
