#include "driver/form_names.h"

namespace norvane {

FormReference* Form_Named(Module1& module1, const std::string& name) {
  Forms& forms = module1.forms;
  const std::pair<const char*, FormReference*> all[] = {
      {"Warmt", &forms.warmt}, {"About", &forms.about},     {"Settings", &forms.settings},
      {"Lang", &forms.lang},   {"Address", &forms.address}, {"Total", &forms.total},
  };
  for (const auto& [form_name, form] : all) {
    if (name == form_name) return form;
  }
  return nullptr;
}

std::string Name_Of(const Field& field) {
  std::string name = field.form().Name() == "Warmt" ? "" : field.form().Name() + ".";
  name += field.Name();
  if (field.Index() != Field::kNoIndex) name += "(" + std::to_string(field.Index()) + ")";
  return name;
}

FormAndRest Resolve_Form(Module1& module1, std::vector<NamePart> parts) {
  if (FormReference* form = Form_Named(module1, parts.front().word)) {
    parts.erase(parts.begin());
    return {*form, true, std::move(parts)};
  }
  return {module1.forms.warmt, false, std::move(parts)};
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
