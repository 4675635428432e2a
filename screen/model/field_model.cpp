#include "screen/model/field_model.h"

#include <algorithm>
#include <utility>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "screen/model/form.h"

namespace norvane {

Field::Field(Form& form, std::string name, int index)
    : form_(form), name_(std::move(name)), index_(index) {
  form_.Add(*this);
}

Field::~Field() = default;

void Field::Notify(Attribute attribute) { form_.Field_Changed(*this, attribute); }

void TextField::Set_Text(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  Notify(Attribute::kText);
  if (On_Change) On_Change();
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

Stepper::Stepper(Form& form, std::string name, int index, TextField& buddy, int least, int most)
    : Field(form, std::move(name), index), buddy_(buddy), least_(least), most_(most) {}

void Stepper::Step(int direction) {
  const int stepped = To_Int16(Val(buddy_.Text())) + direction;
  buddy_.Set_Text(std::to_string(std::clamp(stepped, least_, most_)));
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

}  // namespace norvane
