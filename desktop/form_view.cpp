#include "desktop/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "desktop/desktop.h"
#include "desktop/letters.h"
#include "desktop/twips.h"
#include "host/code_page.h"

namespace norvane {

FormView::FormView(Desktop& desktop, Form& form) : desktop_(desktop), form_(&form) {
  form.Set_Observer(this);
  setMouseTracking(true);
}

FormView::~FormView() { Detach(); }

void FormView::Detach() {
  if (form_ == nullptr) return;
  Leave_Main_Window();
  form_->Set_Observer(nullptr);
  form_ = nullptr;
  changed_.clear();
  focused_ = nullptr;
  for (const auto& binder : binders_) binder->Let_Go();
  if (modal_loop_ != nullptr) modal_loop_->quit();
  modal_loop_ = nullptr;
}

void FormView::Keep(std::unique_ptr<Binder> binder) {
  binder_of_[&binder->BoundField()] = binder.get();
  Note_Change(*binder);
  binders_.push_back(std::move(binder));
}

QWidget* FormView::Widget_Of(const Field& field) const {
  const auto entry = binder_of_.find(&field);
  return entry == binder_of_.end() ? nullptr : entry->second->Widget();
}

void FormView::Field_Changed(Field& field, Attribute attribute) {
  if (attribute == Attribute::kFocus) {
    focused_ = &field;
    return;
  }
  if (attribute == Attribute::kTab) {
    // The fields of the tabs come and go with the one in front.
    for (const auto& binder : binders_) Note_Change(*binder);
    return;
  }
  if (attribute == Attribute::kCaption) {
    letters_outdated_ =
        letters_outdated_ || std::any_of(letters_.begin(), letters_.end(),
                                         [&](const auto& entry) { return entry.first == &field; });
  }
  const auto entry = binder_of_.find(&field);
  if (entry != binder_of_.end()) Note_Change(*entry->second);
}

void FormView::Give_Letters(const std::vector<const Field*>& fields) {
  for (const Field* field : fields) letters_.emplace_back(field, QChar());
  letters_outdated_ = true;
}

QChar FormView::Letter_Of(const Field& field) const {
  for (const auto& [lettered, letter] : letters_) {
    if (lettered == &field) return letter;
  }
  return {};
}

void FormView::Choose_Letters_Anew() {
  letters_outdated_ = false;
  QStringList captions;
  for (const auto& entry : letters_) captions << binder_of_.at(entry.first)->Caption();
  const std::vector<QChar> chosen = Choose_Letters(captions);
  for (std::size_t i = 0; i < letters_.size(); ++i) {
    letters_[i].second = chosen[i];
    Note_Change(*binder_of_.at(letters_[i].first));
  }
}

void FormView::Note_Change(Binder& binder) {
  if (binder.Mark_Changed()) changed_.push_back(&binder);
}

void FormView::Form_Changed(FormAttribute attribute) {
  form_changed_ = true;
  if (attribute == FormAttribute::kActive) brought_to_front_ = true;
  if (attribute == FormAttribute::kPlace && !telling_place_) place_changed_ = true;
  if (attribute != FormAttribute::kShown || form_->Shown()) return;
  Leave_Main_Window();
  if (modal_loop_ == nullptr) return;
  modal_loop_->quit();
  modal_loop_ = nullptr;
}

void FormView::Decode_Anew() {
  for (const auto& binder : binders_) Note_Change(*binder);
  letters_outdated_ = true;
  form_changed_ = true;
}

void FormView::Show_Changes() {
  if (form_ == nullptr) return;
  if (letters_outdated_) Choose_Letters_Anew();
  for (Binder* binder : std::exchange(changed_, {})) {
    binder->Update();
    // What shows or hides may hand on the focus, and with it an event that unloads the form.
    if (form_ == nullptr) return;
  }
  Arrange();
  if (place_untold_) Tell_Place_Later();
  if (std::exchange(form_changed_, false)) Show_Window();
  if (form_ == nullptr) return;
  if (const Field* focused = std::exchange(focused_, nullptr)) {
    if (QWidget* widget = Widget_Of(*focused)) widget->setFocus(Qt::OtherFocusReason);
  }
}

bool FormView::Has_Keyboard() const {
  // Qt counts a dialog as active while the window that it belongs to is.
  return QApplication::activeWindow() == this;
}

void FormView::Show_Window() {
  setWindowTitle(desktop_.Text(form_->Caption()));
  setCursor(form_->MousePointer() == MousePointer::kHourglass ? Qt::WaitCursor : Qt::ArrowCursor);
  const bool place_changed = std::exchange(place_changed_, false);
  if (form_->Shown() && !isVisible()) {
    // In this order: of a window that is there already Qt takes the place as that of its inside.
    Place_Window();
    Belong_To_Main_Window();
    framed_ = false;
    show();
  } else if (!form_->Shown() && isVisible()) {
    hide();
  } else if (place_changed && isVisible()) {
    Place_Window();
  }
  // Not for a window that the user has just activated: two that ask by turns would never rest.
  if (std::exchange(brought_to_front_, false) && isVisible() && !Has_Keyboard()) {
    raise();
    activateWindow();
  }
}

void FormView::Close_By_Escape() {
  new QShortcut(Qt::Key_Escape, this, [this] { Send(UserAction::kCloseBox); });
}

void FormView::Show_Modal(QEventLoop& loop) {
  modal_loop_ = &loop;
  setWindowModality(Qt::ApplicationModal);
}

void FormView::Send(UserAction action, Field& field, int first, int last) {
  if (form_ == nullptr) return;
  UserEvent event{action, *form_, &field};
  event.first = first;
  event.last = last;
  desktop_.Answer(event);
}

void FormView::Send_Text(Field& field, const QString& text) {
  if (form_ == nullptr) return;
  UserEvent event{UserAction::kSetText, *form_, &field};
  event.text = From_Utf8(text.toStdString(), desktop_.program().State().Text_Charset(field));
  desktop_.Answer(event);
}

void FormView::Send(UserAction action) {
  if (form_ != nullptr) desktop_.Answer({action, *form_});
}

void FormView::closeEvent(QCloseEvent* event) {
  event->ignore();
  Send(UserAction::kCloseBox);
}

void FormView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !Has_Keyboard()) return;
  // By now the window manager has put its frame around the window.
  Tell_Place_Later();
  Send(UserAction::kActivate);
}

void FormView::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  Send(UserAction::kHover);
}

}  // namespace norvane
