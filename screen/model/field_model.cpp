#include "screen/model/field_model.h"

#include <algorithm>
#include <utility>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "screen/model/user_event.h"

namespace norvane {

void TextField::Set_Text(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  Notify(Attribute::kText);
  if (On_Change) On_Change();
}

std::optional<std::string> TextField::Reason_To_Refuse(const UserEvent& event) const {
  if (event.action != UserAction::kSetText) return Field::Reason_To_Refuse(event);
  if (locked_) return "the field is locked";
  return std::nullopt;
}

void TextField::Carry_Out(const UserEvent& event) {
  if (event.action != UserAction::kSetText) return Field::Carry_Out(event);
  Set_Text(event.text);
}

std::optional<std::string> SpinField::Reason_To_Refuse(const UserEvent& event) const {
  const bool steps = event.action == UserAction::kDown || event.action == UserAction::kUp;
  return steps ? std::nullopt : Field::Reason_To_Refuse(event);
}

void SpinField::Carry_Out(const UserEvent& event) {
  if (event.action == UserAction::kDown) return Step(-1);
  if (event.action == UserAction::kUp) return Step(1);
  Field::Carry_Out(event);
}

void SpinPair::Step(int direction) {
  const auto& handler = direction < 0 ? On_Down : On_Up;
  if (handler) handler();
}

Stepper::Stepper(Form& form, std::string name, int index, TextField& buddy, int least, int most)
    : SpinField(form, std::move(name), index), buddy_(buddy), least_(least), most_(most) {}

void Stepper::Step(int direction) {
  const int stepped = To_Int16(Val(buddy_.Text())) + direction;
  buddy_.Set_Text(std::to_string(std::clamp(stepped, least_, most_)));
}

void ListField::Add_Item(const std::string& item) {
  items_.push_back(item);
  Notify(Attribute::kItems);
}

void ListField::Clear() {
  items_.clear();
  list_index_ = -1;
  Notify(Attribute::kItems);
}

void ListField::Set_ListIndex(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) {
    throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  }
  Assign(list_index_, index, Attribute::kListIndex);
  if (On_Click) On_Click();
}

std::string ListField::Text() const {
  return list_index_ < 0 ? std::string() : items_[static_cast<std::size_t>(list_index_)];
}

std::optional<std::string> ListField::Reason_To_Refuse(const UserEvent& event) const {
  if (event.action != UserAction::kChoose) return Field::Reason_To_Refuse(event);
  if (event.first < 0 || event.first >= static_cast<int>(items_.size())) return "no such item";
  return std::nullopt;
}

void ListField::Carry_Out(const UserEvent& event) {
  if (event.action != UserAction::kChoose) return Field::Carry_Out(event);
  Set_ListIndex(event.first);
}

Tabs::Tabs(Form& form, std::string name, std::vector<std::string> captions)
    : Field(form, std::move(name)), captions_(std::move(captions)) {}

void Tabs::Set_Tab(int tab) {
  if (tab < 0 || tab >= Count()) throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  if (tab == tab_) return;
  tab_ = tab;
  Notify(Attribute::kTab);
  if (On_Click) On_Click();
}

const std::string& Tabs::TabCaption(int tab) const {
  if (tab < 0 || tab >= Count()) throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  return captions_[static_cast<std::size_t>(tab)];
}

void Tabs::Set_TabCaption(int tab, const std::string& caption) {
  if (tab < 0 || tab >= Count()) throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  Assign(captions_[static_cast<std::size_t>(tab)], caption, Attribute::kCaption);
}

std::optional<std::string> Tabs::Reason_To_Refuse(const UserEvent& event) const {
  if (event.action != UserAction::kPickTab) return Field::Reason_To_Refuse(event);
  if (event.first < 0 || event.first >= Count()) return "no such tab";
  return std::nullopt;
}

void Tabs::Carry_Out(const UserEvent& event) {
  if (event.action != UserAction::kPickTab) return Field::Carry_Out(event);
  Set_Tab(event.first);
}

}  // namespace norvane
