#pragma once

#include <QEventLoop>
#include <QMargins>
#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/binder.h"
#include "desktop/placement.h"
#include "screen/model/form.h"

namespace norvane {

class Desktop;

/// The window of a form. Changes of its fields are collected while handlers run and shown together
/// when the program has answered an event, so a field is painted once however often it changed.
class FormView : public QWidget, public FormObserver {
 public:
  FormView(Desktop& desktop, Form& form);
  ~FormView() override;

  void Field_Changed(Field& field, Attribute attribute) override;
  void Form_Changed(FormAttribute attribute) override;

  /// Brings window and widgets up to date.
  void Show_Changes();
  /// Bytes that belong to no font's character set are other letters from now on.
  void Decode_Anew();
  /// The window alone takes the user's events until its form is hidden; `loop` ends then.
  void Show_Modal(QEventLoop& loop);
  void Leave_Modal() { modal_loop_ = nullptr; }
  /// Tells the program where the window lies, should that have changed.
  void Tell_Place_Anew();
  /// The form is about to go; nothing of it is touched any more.
  void Detach();

  /// Gives a field to a binder, which keeps its widget up to date.
  template <class T, class... Arguments>
  T& Bind(Arguments&&... arguments) {
    auto binder = std::make_unique<T>(*this, std::forward<Arguments>(arguments)...);
    T& bound = *binder;
    Keep(std::move(binder));
    return bound;
  }

  /// The widget of a field, or null when it has none here.
  QWidget* Widget_Of(const Field& field) const;

  /// The letter by which Alt reaches a field, a null letter for one without.
  QChar Letter_Of(const Field& field) const;

  /// Tells the program what the user does with a field, or with the form itself.
  void Send(UserAction action, Field& field, int first = 0, int last = 0);
  void Send_Text(Field& field, const QString& text);
  void Send(UserAction action);

  Desktop& desktop() const { return desktop_; }
  Form* form() const { return form_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

  /// Called after each event when all widgets are up to date, for what depends on several of them.
  virtual void Arrange() {}
  /// Gives fields with a caption a letter each; the first ones have the first choice.
  void Give_Letters(const std::vector<const Field*>& fields);
  /// The Escape key does what the window's close box does.
  void Close_By_Escape();
  /// Where the upper left of the window's frame is to lie, for an inside of this size.
  virtual QPoint Wished_Place(const QSize& size) const;
  /// What the window manager puts around the window; before the first window is there, about that.
  QMargins Frame() const;

 private:
  void Keep(std::unique_ptr<Binder> binder);
  void Note_Change(Binder& binder);
  void Choose_Letters_Anew();
  void Show_Window();
  bool Has_Keyboard() const;
  void Belong_To_Main_Window();
  void Leave_Main_Window();
  void Place_Window();
  void Let_Scroll();
  void Tell_Place_Later();
  void Tell_Place();
  bool Is_Newly_Framed();
  bool Lies_As_Placed() const;

  Desktop& desktop_;
  Form* form_;
  std::vector<std::unique_ptr<Binder>> binders_;
  std::unordered_map<const Field*, Binder*> binder_of_;
  std::vector<Binder*> changed_;
  std::vector<std::pair<const Field*, QChar>> letters_;
  bool letters_outdated_ = false;
  Field* focused_ = nullptr;
  bool form_changed_ = true;
  bool place_changed_ = false;  ///< by the program
  bool place_untold_ = false;   ///< changed by the user or the window manager
  bool telling_place_ = false;
  bool made_smaller_ = false;  ///< than it should be, for want of room
  Placement placed_;           ///< the last one by the program
  bool framed_ = false;        ///< by the window manager, since the window was shown
  QWidget* scrolled_page_ = nullptr;
  bool brought_to_front_ = false;
  QEventLoop* modal_loop_ = nullptr;
};

}  // namespace norvane
