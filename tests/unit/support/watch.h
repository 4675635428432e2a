#pragma once

#include <functional>
#include <utility>

#include "screen/model/form.h"

namespace norvane {

/// Is told of every change of a form while it lives. The form has to live as long.
class Watch : public FormObserver {
 public:
  using FieldTold = std::function<void(const Field& field, Attribute attribute)>;
  using FormTold = std::function<void(FormAttribute attribute)>;

  explicit Watch(Form& form, FieldTold field_told, FormTold form_told = {})
      : form_(form), field_told_(std::move(field_told)), form_told_(std::move(form_told)) {
    form_.Set_Observer(this);
  }
  ~Watch() override { form_.Set_Observer(nullptr); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  void Field_Changed(Field& field, Attribute attribute) override { field_told_(field, attribute); }
  void Form_Changed(FormAttribute attribute) override {
    if (form_told_) form_told_(attribute);
  }

 private:
  Form& form_;
  FieldTold field_told_;
  FormTold form_told_;
};

}  // namespace norvane
