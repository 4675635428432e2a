#include "screen/model/desk.h"

#include <algorithm>
#include <utility>

#include "data/runtime_error.h"
#include "screen/model/form.h"

namespace norvane {

Desk::Desk(Display& display) : display_(display) {}

Desk::~Desk() = default;

bool Desk::Is_Modal(const Form& form) const {
  return std::find(modal_.begin(), modal_.end(), &form) != modal_.end();
}

void Desk::Show(Form& form) {
  if (Active() == &form) return;
  std::erase(shown_, &form);
  shown_.push_back(&form);
  if (!form.shown_) {
    form.shown_ = true;
    form.Notify(FormAttribute::kShown);
  }
  Make_Active(form);
}

void Desk::Show_Modal(Form& form) {
  modal_.push_back(&form);
  Show(form);
  if (form.Shown()) display_.Run_Modal(form);
  std::erase(modal_, &form);
  Require_Running();
}

void Desk::Hide(Form& form) {
  if (form.Shown()) Take_Away(form);
}

void Desk::Loaded(Form& form) { display_.Form_Loaded(form); }

void Desk::Unload(std::unique_ptr<Form> form) {
  Form& leaving = *form;
  unloaded_.push_back(std::move(form));
  display_.Form_Unloaded(leaving);
  leaving.Set_Observer(nullptr);
  if (leaving.Shown()) {
    Take_Away(leaving);
  } else if (focus_ != nullptr && &focus_->form() == &leaving) {
    Give_Back_Focus();
  }
}

void Desk::Forget_Unloaded() { unloaded_.clear(); }

void Desk::Let_Events_Run() {
  display_.Let_Events_Run();
  Require_Running();
}

void Desk::Set_Focus(Field& field) {
  if (!field.form().Shows(field)) throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  focus_ = &field;
  field.form().focus_ = &field;
  field.form().Field_Changed(field, Attribute::kFocus);
}

void Desk::Quit() {
  End();
  throw ProgramEnd{};
}

void Desk::Make_Active(Form& form) {
  form.Notify(FormAttribute::kActive);
  if (!form.sized_) {
    form.sized_ = true;
    form.Resize();
  }
  form.Activate();
}

void Desk::Take_Away(Form& form) {
  const bool was_active = Active() == &form;
  std::erase(shown_, &form);
  std::erase(modal_, &form);
  form.shown_ = false;
  form.Notify(FormAttribute::kShown);
  Give_Back_Focus();
  if (was_active && !shown_.empty()) Make_Active(*shown_.back());
}

void Desk::Give_Back_Focus() { focus_ = Active() == nullptr ? nullptr : Active()->focus_; }

void Desk::Require_Running() const {
  if (ended_) throw ProgramEnd{};
}

}  // namespace norvane
