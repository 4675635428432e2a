#include "screen/model/carry_out.h"

#include "screen/model/desk.h"
#include "screen/model/field.h"
#include "screen/model/form.h"

namespace norvane {
namespace {

void Carry_Out_On_Form(const UserEvent& event) {
  switch (event.action) {
    case UserAction::kHover:
      event.form.Hover();
      break;
    case UserAction::kResize:
      event.form.Set_Size(event.width, event.height);
      event.form.Resize();
      break;
    case UserAction::kMove:
      event.form.Set_Position(event.left, event.top);
      break;
    case UserAction::kCloseBox:
      event.form.Close_Box();
      break;
    case UserAction::kActivate:
    case UserAction::kSetText:
    case UserAction::kClick:
    case UserAction::kDown:
    case UserAction::kUp:
    case UserAction::kChoose:
    case UserAction::kPickTab:
    case UserAction::kPickRows:
      break;
  }
}

}  // namespace

std::optional<std::string> Reason_To_Refuse(const Desk& desk, const UserEvent& event) {
  if (desk.Ended()) return "the program has ended";
  if (!event.form.Shown()) return "the form isn't shown";
  if (desk.Modal() != nullptr && desk.Modal() != &event.form) return "another form is open";
  if (event.action == UserAction::kCloseBox && !event.form.has_close_box) return "no close box";
  if (event.field == nullptr) return std::nullopt;
  if (!event.form.Shows(*event.field)) return "the field isn't visible";
  if (event.field->out_of_reach) return "the field lies outside the form";
  return event.field->Reason_To_Refuse(event);
}

void Carry_Out(Desk& desk, const UserEvent& event) {
  if (event.field == nullptr) {
    Carry_Out_On_Form(event);
    return;
  }
  const bool acts = event.action != UserAction::kHover;
  if (acts && event.field->Takes_Focus()) desk.Set_Focus(*event.field);
  event.field->Carry_Out(event);
}

}  // namespace norvane
