#include <functional>
#include <map>

#include "calc/sizes.h"
#include "catalogue/addresses.h"
#include "data/runtime_error.h"
#include "driver/form_names.h"
#include "driver/text.h"
#include "driver/values.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

using Indices = std::vector<int>;
using Reader = std::function<std::string(Module1&, const Indices&)>;

struct StateName {
  std::size_t indices;
  Reader read;
};

template <class List>
const auto& Element(const List& list, int index) {
  if (index < 0 || index >= static_cast<int>(list.size())) throw ScriptError();
  return list[static_cast<std::size_t>(index)];
}

std::string Current_Text(const Module1& module1, const std::string& bytes) {
  return Shown(bytes, module1.Text_Charset());
}

template <class Member>
StateName Number(Member member) {
  return {0,
          [member](Module1& m, const Indices&) { return Printed(static_cast<double>(m.*member)); }};
}

template <class Member>
StateName Single(Member member) {
  return {0, [member](Module1& m, const Indices&) { return Printed(m.*member); }};
}

template <class Member>
StateName Screen_Number(Member member) {
  return {0, [member](Module1& m, const Indices&) {
            return Printed(static_cast<double>((*m.forms.warmt).*member));
          }};
}

template <class Member>
StateName Screen_Flag(Member member) {
  return {0, [member](Module1& m, const Indices&) { return Printed((*m.forms.warmt).*member); }};
}

template <class Member>
StateName Screen_Element(Member member) {
  return {1, [member](Module1& m, const Indices& at) {
            return Printed(static_cast<double>(Element((*m.forms.warmt).*member, at[0])));
          }};
}

/// An entry of a list whose empty entries have an empty text.
template <class Member>
StateName Screen_Entry(Member member) {
  return {1, [member](Module1& m, const Indices& at) {
            const auto& entry = Element((*m.forms.warmt).*member, at[0]);
            return entry ? Printed(*entry) : std::string();
          }};
}

template <class Member>
StateName Language_Entry(Member member) {
  return {1, [member](Module1& m, const Indices& at) {
            const auto& entry = Element(m.languages.*member, at[0]);
            return Shown(entry.value_or(""), m.Text_Charset(at[0]));
          }};
}

template <class Member>
StateName Language_Text(Member member) {
  return {0, [member](Module1& m, const Indices&) { return Current_Text(m, m.languages.*member); }};
}

const std::map<std::string, StateName>& State_Names() {
  static const std::map<std::string, StateName> names = {
      {"Lambda", Single(&Module1::Lambda)},
      {"Alpha", Single(&Module1::Alpha)},
      {"Hr_Day", Number(&Module1::Hr_Day)},
      {"Days", Number(&Module1::Days)},
      {"Mtrs", Number(&Module1::Mtrs)},
      {"Sel_Size", Number(&Module1::Sel_Size)},
      {"Lang_Index", Number(&Module1::Lang_Index)},
      {"Total_Sum1", Number(&Module1::Total_Sum1)},
      {"Total_Sum2", Number(&Module1::Total_Sum2)},
      {"Total_Sum3", Number(&Module1::Total_Sum3)},
      {"Idx_A1", Screen_Number(&Warmt::Idx_A1)},
      {"Idx_A4", Screen_Number(&Warmt::Idx_A4)},
      {"Hover_Group", Screen_Number(&Warmt::Hover_Group)},
      {"Calc_Busy", Screen_Flag(&Warmt::Calc_Busy)},
      {"First_Warmt", Screen_Flag(&Warmt::First_Warmt)},
      {"First_Condens", Screen_Flag(&Warmt::First_Condens)},
      {"Hover_Index", Screen_Element(&Warmt::Hover_Index)},
      {"Dew_Temps", Screen_Entry(&Warmt::Dew_Temps)},
      {"Dew_Hums", Screen_Entry(&Warmt::Dew_Hums)},
      {"Lang_Code", Language_Entry(&LanguageTables::Lang_Code)},
      {"Lang_FontName", Language_Entry(&LanguageTables::Lang_FontName)},
      {"Lang_Charset", Language_Entry(&LanguageTables::Lang_Charset)},
      {"Lang_Hdr1", Language_Text(&LanguageTables::Lang_Hdr1)},
      {"Lang_Hdr2", Language_Text(&LanguageTables::Lang_Hdr2)},
      {"Lang_Hdr3", Language_Text(&LanguageTables::Lang_Hdr3)},
      {"Calc_Mode",
       {0, [](Module1& m, const Indices&) { return Current_Text(m, m.forms.warmt->Calc_Mode); }}},
      {"Tool_Sel",
       {1,
        [](Module1& m, const Indices& at) {
          return Printed(static_cast<double>(Element(m.Tool_Sel, at[0])));
        }}},
      {"arrGroupSizes",
       {1,
        [](Module1& m, const Indices& at) {
          return Printed(static_cast<double>(Element(m.arrGroupSizes, at[0])));
        }}},
      {"Calc_List",
       {1, [](Module1& m,
              const Indices& at) { return Current_Text(m, Element(m.Calc_List, at[0])); }}},
      {"Lang_Text",
       {2,
        [](Module1& m, const Indices& at) {
          const std::string& text = Element(Element(m.languages.Lang_Text, at[0]), at[1]);
          return Shown(text, m.Text_Charset(at[0]));
        }}},
      {"Address_Table",
       {2, [](Module1& m,
              const Indices& at) { return Current_Text(m, Address_Field(m, at[0], at[1])); }}},
      {"Dew_Table",
       {2, [](Module1& m,
              const Indices& at) { return Printed(m.forms.warmt->Dew_Table(at[0], at[1])); }}},
      {"Thick_Steps",
       {1,
        [](Module1&, const Indices& at) {
          return Printed(static_cast<double>(Element(Thick_Steps(), at[0])));
        }}},
      {"Pipe_Sizes",
       {2,
        [](Module1&, const Indices& at) {
          return Printed(static_cast<double>(Element(Pipe_Sizes(at[0]), at[1]).mm));
        }}},
      {"Focus",
       {0,
        [](Module1& m, const Indices&) {
          return m.desk.Focus() == nullptr ? std::string() : Name_Of(*m.desk.Focus());
        }}},
  };
  return names;
}

}  // namespace

std::optional<std::string> State_Value(Module1& module1, const std::vector<NamePart>& parts) {
  const NamePart& first = parts.front();
  if (parts.size() == 2 && first.word == "Calc_List" && first.numbers.empty() &&
      parts[1].word == "UBound") {
    return Printed(static_cast<double>(module1.Calc_List.size()) - 1);
  }
  if (parts.size() != 1) return std::nullopt;
  const auto name = State_Names().find(first.word);
  if (name == State_Names().end() || name->second.indices != first.numbers.size()) {
    return std::nullopt;
  }
  try {
    return name->second.read(module1, first.numbers);
  } catch (const RuntimeError&) {
    throw ScriptError();
  }
}

}  // namespace norvane
