#include "screen/model/carry_out.h"

#include "screen/model/desk.h"
#include "screen/model/field_model.h"
#include "screen/model/form.h"
#include "screen/model/grid.h"

namespace norvane {
namespace {

/// Why the field itself can't take the action; the user sees the field.
std::optional<std::string> Reason_Of_Field(const UserEvent& event) {
  const Field& field = *event.field;
  switch (event.action) {
    case UserAction::kSetText: {
      const auto* text = dynamic_cast<const TextField*>(&field);
      if (text == nullptr) return "not a text field";
      if (text->Locked()) return "the field is locked";
      break;
    }
    case UserAction::kDown:
    case UserAction::kUp:
      if (dynamic_cast<const SpinPair*>(&field) == nullptr &&
          dynamic_cast<const Stepper*>(&field) == nullptr) {
        return "not a spin pair";
      }
      break;
    case UserAction::kChoose: {
      const auto* list = dynamic_cast<const ListField*>(&field);
      if (list == nullptr) return "not a list";
      if (event.first < 0 || event.first >= static_cast<int>(list->Items().size())) {
        return "no such item";
      }
      break;
    }
    case UserAction::kPickTab: {
      const auto* tabs = dynamic_cast<const Tabs*>(&field);
      if (tabs == nullptr) return "no tabs";
      if (event.first < 0 || event.first >= tabs->Count()) return "no such tab";
      break;
    }
    case UserAction::kPickRows: {
      const auto* grid = dynamic_cast<const Grid*>(&field);
      if (grid == nullptr) return "not a grid";
      for (const int row : {event.first, event.last}) {
        if (row < 1 || row >= grid->Rows()) return "no such line";
      }
      break;
    }
    default:
      break;
  }
  return std::nullopt;
}

bool Takes_Focus(const Field& field) {
  return dynamic_cast<const CaptionField*>(&field) == nullptr &&
         dynamic_cast<const PictureField*>(&field) == nullptr &&
         dynamic_cast<const SpinPair*>(&field) == nullptr &&
         dynamic_cast<const Stepper*>(&field) == nullptr;
}

void Step(Field& field, UserAction action) {
  const bool down = action == UserAction::kDown;
  if (auto* stepper = dynamic_cast<Stepper*>(&field)) {
    stepper->Step(down ? -1 : 1);
    return;
  }
  auto& pair = dynamic_cast<SpinPair&>(field);
  const auto& handler = down ? pair.On_Down : pair.On_Up;
  if (handler) handler();
}

void Carry_Out_On_Form(const UserEvent& event) {
  switch (event.action) {
    case UserAction::kHover:
      event.form.Hover();
      break;
    case UserAction::kResize:
      event.form.Set_Size(event.width, event.height);
      event.form.Resize();
      break;
    case UserAction::kCloseBox:
      event.form.Close_Box();
      break;
    default:
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
  return Reason_Of_Field(event);
}

void Carry_Out(Desk& desk, const UserEvent& event) {
  if (event.field == nullptr) {
    Carry_Out_On_Form(event);
    return;
  }
  Field& field = *event.field;
  if (event.action == UserAction::kHover) {
    if (field.On_Hover) field.On_Hover();
    return;
  }
  if (Takes_Focus(field)) desk.Set_Focus(field);
  switch (event.action) {
    case UserAction::kSetText:
      dynamic_cast<TextField&>(field).Set_Text(event.text);
      break;
    case UserAction::kClick:
      if (field.On_Click) field.On_Click();
      break;
    case UserAction::kDown:
    case UserAction::kUp:
      Step(field, event.action);
      break;
    case UserAction::kChoose:
      dynamic_cast<ListField&>(field).Set_ListIndex(event.first);
      break;
    case UserAction::kPickTab:
      dynamic_cast<Tabs&>(field).Set_Tab(event.first);
      break;
    case UserAction::kPickRows:
      dynamic_cast<Grid&>(field).Pick_Rows(event.first, event.last);
      break;
    default:
      break;
  }
}

}  // namespace norvane
