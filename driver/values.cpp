#include "driver/values.h"

#include <cmath>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "driver/form_names.h"
#include "driver/text.h"
#include "frame/about_form.h"
#include "screen/model/grid.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

std::string Printed_Color(const BackColor& color) {
  if (color.system) return "system";
  return std::to_string(color.red) + "," + std::to_string(color.green) + "," +
         std::to_string(color.blue);
}

std::optional<std::string> Place_Value(const Place& place, const std::string& attribute) {
  if (attribute == "Left") return Printed(place.left);
  if (attribute == "Top") return Printed(place.top);
  if (attribute == "Width") return Printed(place.width);
  if (attribute == "Height") return Printed(place.height);
  return std::nullopt;
}

std::optional<std::string> Font_Value(const Font& font, const std::string& attribute) {
  if (attribute == "Name") return Escape(font.name);
  if (attribute == "Size") return Printed(font.size);
  if (attribute == "Bold") return Printed(font.bold);
  if (attribute == "Charset") return Printed(static_cast<double>(font.charset.value_or(0)));
  return std::nullopt;
}

std::optional<std::string> Kind_Value(const TextField& field, const NamePart& attribute, int) {
  if (attribute.word == "Locked") return Printed(field.Locked());
  if (attribute.word == "BackColor") return Printed_Color(field.BackColor());
  return std::nullopt;
}

std::optional<std::string> Kind_Value(const CaptionField& field, const NamePart& attribute, int) {
  if (attribute.word == "BackColor") return Printed_Color(field.BackColor());
  if (attribute.word == "BackStyle") {
    return Printed(field.BackStyle() == BackStyle::kOpaque ? 1.0 : 0.0);
  }
  return std::nullopt;
}

std::optional<std::string> Kind_Value(const Button& field, const NamePart& attribute, int) {
  if (attribute.word != "Picture") return std::nullopt;
  return field.Picture() == ButtonPicture::kChosen ? "chosen" : "plain";
}

std::optional<std::string> Kind_Value(const PictureField& field, const NamePart& attribute, int) {
  if (attribute.word != "Picture") return std::nullopt;
  return Printed(static_cast<double>(field.Picture()));
}

std::optional<std::string> Kind_Value(const ListField& field, const NamePart& attribute,
                                      int charset) {
  if (attribute.word == "ListIndex") return Printed(static_cast<double>(field.ListIndex()));
  if (attribute.word == "ListCount") return Printed(static_cast<double>(field.Items().size()));
  if (attribute.word != "Item" || attribute.numbers.size() != 1) return std::nullopt;
  const auto index = static_cast<std::size_t>(attribute.numbers[0]);
  if (index >= field.Items().size()) throw ScriptError();
  return Shown(field.Items()[index], charset);
}

std::optional<std::string> Kind_Value(const Tabs& field, const NamePart& attribute, int charset) {
  if (attribute.word == "Tab") return Printed(static_cast<double>(field.Tab()));
  if (attribute.word != "TabCaption" || attribute.numbers.size() != 1) return std::nullopt;
  return Shown(field.TabCaption(attribute.numbers[0]), charset);
}

std::optional<std::string> Kind_Value(const Grid& field, const NamePart& attribute, int charset) {
  if (attribute.word == "Rows") return Printed(static_cast<double>(field.Rows()));
  if (attribute.word == "Cols") return Printed(static_cast<double>(field.Cols()));
  if (attribute.word == "Row") return Printed(static_cast<double>(field.Row()));
  if (attribute.word == "RowSel") return Printed(static_cast<double>(field.RowSel()));
  const auto& at = attribute.numbers;
  if (attribute.word == "ColWidth" && at.size() == 1) return Printed(field.ColWidth(at[0]));
  if (attribute.word == "Cell" && at.size() == 2) return Shown(field.Cell(at[0], at[1]), charset);
  return std::nullopt;
}

std::optional<std::string> Kind_Value(const TickTimer& field, const NamePart& attribute, int) {
  if (attribute.word != "Enabled") return std::nullopt;
  return Printed(field.Enabled());
}

/// Asks the field as each of the kinds in turn.
template <class... Kinds>
std::optional<std::string> Value_By_Kind(const Field& field, const NamePart& attribute,
                                         int charset) {
  std::optional<std::string> value;
  const auto ask = [&](const auto* kind) {
    if (kind != nullptr && !value) value = Kind_Value(*kind, attribute, charset);
  };
  (ask(dynamic_cast<const Kinds*>(&field)), ...);
  return value;
}

std::optional<std::string> Field_Value(const Module1& module1, const Field& field,
                                       const std::vector<NamePart>& rest) {
  if (rest.empty()) return Text_Of(module1, field);
  if (rest.size() == 2 && rest[0].word == "Font") return Font_Value(field.Font(), rest[1].word);
  if (rest.size() != 1) return std::nullopt;
  const NamePart& attribute = rest[0];
  if (attribute.word == "Text" || attribute.word == "Caption") return Text_Of(module1, field);
  if (attribute.word == "Visible") return Printed(field.Visible());
  if (attribute.word == "Bold") return Printed(field.Font().bold);
  if (auto value = Place_Value(field.Place(), attribute.word)) return value;
  return Value_By_Kind<TextField, CaptionField, Button, PictureField, ListField, Tabs, Grid,
                       TickTimer>(field, attribute, module1.Text_Charset(field));
}

std::optional<std::string> Form_Value(const Module1& module1, const Form& form,
                                      const std::string& attribute) {
  const int charset = module1.Text_Charset();
  if (attribute == "Caption") return Shown(form.Caption(), charset);
  if (attribute == "Tag") return Shown(form.Tag, charset);
  if (attribute == "Visible") return Printed(form.Shown());
  if (attribute == "Active") return Printed(form.Is_Active());
  if (attribute == "MousePointer") {
    return Printed(static_cast<double>(static_cast<int>(form.MousePointer())));
  }
  if (auto value = Place_Value(form.Place(), attribute)) return value;
  if (const auto* about = dynamic_cast<const About*>(&form); about && attribute == "Tick_Count") {
    return Printed(static_cast<double>(about->Tick_Count));
  }
  if (const auto* total = dynamic_cast<const Total*>(&form)) {
    if (attribute == "Sums_Text") return Shown(total->Sums_Text, charset);
    if (attribute == "First_Activation") return Printed(total->First_Activation);
    if (attribute == "Close_On_Activation") return Printed(total->Close_On_Activation);
  }
  return std::nullopt;
}

}  // namespace

std::string Printed(bool flag) { return flag ? "true" : "false"; }

std::string Printed(double number) {
  if (std::isinf(number)) return number < 0 ? "-inf" : "inf";
  return Format(number, Locale{});
}

std::string Printed(float single) { return Text_Of_Single(single, Locale{}); }

std::optional<std::string> Text_Of(const Module1& module1, const Field& field) {
  const int charset = module1.Text_Charset(field);
  if (const auto* text = dynamic_cast<const TextField*>(&field)) {
    return Shown(text->Text(), charset);
  }
  if (const auto* caption = dynamic_cast<const CaptionField*>(&field)) {
    return Shown(caption->Caption(), charset);
  }
  if (const auto* button = dynamic_cast<const Button*>(&field)) {
    return Shown(button->Caption(), charset);
  }
  if (const auto* list = dynamic_cast<const ListField*>(&field)) {
    return Shown(list->Text(), charset);
  }
  return std::nullopt;
}

std::string Value_Of(Module1& module1, const std::vector<NamePart>& parts) {
  if (parts.size() == 2 && parts[0].word == "Loaded") {
    const NamedForm* form = Form_Named(parts[1].word);
    if (form == nullptr) throw ScriptError();
    return Printed(form->of(module1.forms).Loaded());
  }
  if (auto value = State_Value(module1, parts)) return *value;
  FormAndRest resolved = Split_Form(parts);
  if (resolved.rest.empty()) throw ScriptError();
  const Form& form = resolved.form.of(module1.forms).Get();
  const NamePart& first = resolved.rest.front();
  if (resolved.named && resolved.rest.size() == 1 && first.numbers.empty()) {
    if (auto value = Form_Value(module1, form, first.word)) return *value;
  }
  const Field& field = Resolve_Field(form, first);
  resolved.rest.erase(resolved.rest.begin());
  try {
    if (auto value = Field_Value(module1, field, resolved.rest)) return *value;
  } catch (const RuntimeError&) {
    throw ScriptError();
  }
  throw ScriptError();
}

}  // namespace norvane
