#include "screen/model/field.h"

#include <utility>

#include "screen/model/form.h"
#include "screen/model/user_event.h"

namespace norvane {

Field::Field(Form& form, std::string name, int index)
    : form_(form), name_(std::move(name)), index_(index) {
  form_.Add(*this);
}

Field::~Field() = default;

void Field::Notify(Attribute attribute) { form_.Field_Changed(*this, attribute); }

std::optional<std::string> Field::Reason_To_Refuse(const UserEvent& event) const {
  switch (event.action) {
    case UserAction::kSetText:
      return "not a text field";
    case UserAction::kDown:
    case UserAction::kUp:
      return "not a spin pair";
    case UserAction::kChoose:
      return "not a list";
    case UserAction::kPickTab:
      return "no tabs";
    case UserAction::kPickRows:
      return "not a grid";
    case UserAction::kClick:
    case UserAction::kHover:
    case UserAction::kActivate:
    case UserAction::kResize:
    case UserAction::kMove:
    case UserAction::kCloseBox:
      break;
  }
  return std::nullopt;
}

void Field::Carry_Out(const UserEvent& event) {
  if (event.action == UserAction::kClick && On_Click) On_Click();
  if (event.action == UserAction::kHover && On_Hover) On_Hover();
}

}  // namespace norvane
