#include "driver/form_names.h"

namespace norvane {

const std::array<NamedForm, 6> kNamedForms = {{
    {"Warmt", [](Forms& forms) -> FormReference& { return forms.warmt; }},
    {"About", [](Forms& forms) -> FormReference& { return forms.about; }},
    {"Settings", [](Forms& forms) -> FormReference& { return forms.settings; }},
    {"Lang", [](Forms& forms) -> FormReference& { return forms.lang; }},
    {"Address", [](Forms& forms) -> FormReference& { return forms.address; }},
    {"Total", [](Forms& forms) -> FormReference& { return forms.total; }},
}};

const NamedForm* Form_Named(const std::string& name) {
  for (const NamedForm& form : kNamedForms) {
    if (name == form.name) return &form;
  }
  return nullptr;
}

std::string Name_Of(const Field& field) {
  std::string name = field.form().Name() == "Warmt" ? "" : field.form().Name() + ".";
  name += field.Name();
  if (field.Index() != Field::kNoIndex) name += "(" + std::to_string(field.Index()) + ")";
  return name;
}

FormAndRest Split_Form(std::vector<NamePart> parts) {
  if (const NamedForm* form = Form_Named(parts.front().word)) {
    parts.erase(parts.begin());
    return {*form, true, std::move(parts)};
  }
  return {kNamedForms.front(), false, std::move(parts)};
}

Field& Resolve_Field(const Form& form, const NamePart& part) {
  if (part.numbers.size() > 1) throw ScriptError();
  const int index = part.numbers.empty() ? Field::kNoIndex : part.numbers.front();
  if (!part.numbers.empty() && index < 0) throw ScriptError();
  Field* field = form.Find(part.word, index);
  if (field == nullptr) throw ScriptError();
  return *field;
}

}  // namespace norvane
