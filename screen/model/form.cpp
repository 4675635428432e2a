#include "screen/model/form.h"

#include <algorithm>
#include <utility>

#include "screen/model/desk.h"

namespace norvane {

Form::Form(Desk& desk, std::string name, double width, double height)
    : desk_(desk), name_(std::move(name)), place_{0, 0, width, height} {}

Form::~Form() = default;

void Form::Set_Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Notify(FormAttribute::kCaption);
}

void Form::Set_Place(const norvane::Place& place) {
  if (place == place_) return;
  place_ = place;
  Notify(FormAttribute::kPlace);
}

void Form::Set_Size(double width, double height) {
  Set_Place({place_.left, place_.top, width, height});
}

void Form::Set_Position(double left, double top) {
  Set_Place({left, top, place_.width, place_.height});
}

void Form::Centre() {
  const DisplayArea screen = desk_.Available_Area();
  Set_Position(screen.left + (screen.width - place_.width) / 2,
               screen.top + (screen.height - place_.height) / 2);
}

void Form::Set_MousePointer(norvane::MousePointer pointer) {
  if (pointer == mouse_pointer_) return;
  mouse_pointer_ = pointer;
  Notify(FormAttribute::kMousePointer);
}

bool Form::Is_Active() const { return desk_.Active() == this; }

bool Form::Is_Modal() const { return desk_.Is_Modal(*this); }

void Form::Show() { desk_.Show(*this); }

void Form::Show_Modal() { desk_.Show_Modal(*this); }

void Form::Hide() { desk_.Hide(*this); }

bool Form::Shows(const Field& field) const {
  if (!field.Visible() || (field.panel != nullptr && !field.panel->Visible())) return false;
  return !field.on_tab || tabs == nullptr || *field.on_tab == tabs->Tab();
}

Field* Form::Find(const std::string& name, int index) const {
  const auto found = std::find_if(fields_.begin(), fields_.end(), [&](const Field* field) {
    return field->Name() == name && field->Index() == index;
  });
  return found == fields_.end() ? nullptr : *found;
}

void Form::Field_Changed(Field& field, Attribute attribute) {
  if (observer_ != nullptr) observer_->Field_Changed(field, attribute);
}

void Form::Notify(FormAttribute attribute) {
  if (observer_ != nullptr) observer_->Form_Changed(attribute);
}

}  // namespace norvane
