#pragma once

#include <array>
#include <string>

#include "driver/name.h"
#include "frame/shared_state.h"

namespace norvane {

/// A form of the program by its name.
struct NamedForm {
  const char* name;
  FormReference& (*of)(Forms& forms);
};

extern const std::array<NamedForm, 6> kNamedForms;

/// The form of that name, or null when there is none such.
const NamedForm* Form_Named(const std::string& name);

/// A field's name with its index, behind its form unless that is the main form.
std::string Name_Of(const Field& field);

/// A form and, where a name goes on, the parts behind it. A name without a form is the main form's.
struct FormAndRest {
  const NamedForm& form;
  bool named;  ///< whether the form was named
  std::vector<NamePart> rest;
};
FormAndRest Split_Form(std::vector<NamePart> parts);

/// The field that a part names on a form. Throws `ScriptError` when there is none.
Field& Resolve_Field(const Form& form, const NamePart& part);

}  // namespace norvane
