#include "screen_rules.h"

#include <algorithm>

#include "calc/conversions.h"
#include "calc/heat_loss.h"
#include "data/runtime_error.h"
#include "data/text.h"
#include "driver/form_names.h"
#include "driver/values.h"
#include "require.h"
#include "screen/warmt.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

void Require_Of(const Field& field, bool holds, const char* rule) {
  if (!holds) Require(false, Name_Of(field) + ' ' + rule);
}

void Require_Shown(const Field& field, bool shown) {
  Require_Of(field, field.Visible() == shown, shown ? "is to be seen" : "isn't to be seen");
}

void Require_Fields_Of_Mode(Warmt& w, bool heat, bool sheet) {
  for (TextField& field : w.txtT) Require_Shown(field, heat && !(sheet && field.Index() == 3));
  for (TextField& field : w.txtC) Require_Shown(field, !heat && !(sheet && field.Index() == 3));
  Require_Shown(w.SpinButton1(2), heat);
  Require_Shown(w.SpinButton1(4), !heat);
  Require_Shown(w.Label1(4), !heat);
  for (int row = 3; row <= 8; ++row) Require_Shown(w.Label3(row), heat);
  for (int row = 3; row <= 8; ++row) Require_Shown(w.Label9(row), heat);
  for (int row = 3; row <= 9; ++row) Require_Shown(w.Label4(row), heat);
  Require_Shown(w.Label6, heat);
  Require_Shown(w.cmdAdd, heat);
  Require(w.Label1(2).Font().bold == !heat, "the thickness is bold where it is a result");
  Require(w.txtC(4).Locked(), "the humidity is for stepping");
  if (heat) {
    Require(!w.txtT(1).Locked() && w.txtT(1).BackColor() == kSystemWindow, "txtT(1) takes text");
    Require(w.txtT(2).BackColor() == kSystemWindow && !w.txtT(2).Font().bold, "txtT(2) is input");
  } else {
    Require(w.txtC(1).Locked() && w.txtC(1).BackColor() == kGrey, "txtC(1) is for stepping");
    Require(w.txtC(2).BackColor() == kGrey && w.txtC(2).Font().bold, "txtC(2) is a result");
    Require_Shown(w.Label7(4), true);
  }
}

void Require_Fields_Of_Kind(Warmt& w, bool sheet) {
  for (Field* field :
       std::initializer_list<Field*>{&w.Label1(3), &w.Label7(3), &w.SpinButton1(3)}) {
    Require_Shown(*field, !sheet);
  }
  if (sheet) Require_Shown(w.Text2(3), false);
  for (int row = 0; row <= 3; ++row) {
    Require(w.Text2(row).Visible() == w.Label8(row).Visible(), "a conversion and its unit");
  }
  Require_Shown(w.Text2(0), true);
  Require_Shown(w.Text2(1), true);
  const std::string& inch = w.Text2(2).Caption();
  Require_Shown(w.Text2(2), !Trim(inch).empty() && inch != "0");
  for (Field* field : std::initializer_list<Field*>{&w.Label0, &w.Picture2, &w.Label1(0),
                                                    &w.Label1(1), &w.Label1(2), &w.txtmtrs}) {
    Require_Shown(*field, true);
  }
  Require_Shown(w.Text4(1), false);
}

void Require_Chosen(FieldArray<Button>& buttons, int chosen) {
  for (const Button& button : buttons) {
    const bool is_chosen = button.Picture() == ButtonPicture::kChosen;
    Require_Of(button, is_chosen == (button.Index() == chosen), "is the chosen one, or isn't");
  }
}

void Require_Toolbar(const Module1& module1, Warmt& w, bool heat) {
  Require(module1.Tool_Sel[kKindGroup] == module1.Sel_Size, "the button of the kind");
  Require(module1.Tool_Sel[kModeGroup] == (heat ? 0 : 1), "the button of the mode");
  Require_Chosen(w.cmdToolBar1, module1.Tool_Sel[kKindGroup]);
  Require_Chosen(w.cmdToolBar4, module1.Tool_Sel[kLambdaGroup]);
  Require((w.cmdToolBarT.Picture() == ButtonPicture::kChosen) == heat, "the chosen mode");
  Require((w.cmdToolBarC.Picture() == ButtonPicture::kChosen) == !heat, "the chosen mode");
  Require(w.Picture2.Picture() >= 1 && w.Picture2.Picture() <= 20, "there are twenty pictures");
}

bool Is_Number(std::string text, const Locale& locale) {
  if (!text.empty() && text.back() == '%') text.pop_back();
  try {
    To_Number(text, locale);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

void Require_Results(Warmt& w, const Locale& locale) {
  for (const CaptionField& result : w.Label4) {
    Require_Of(result, result.Caption().empty() || Is_Number(result.Caption(), locale),
               "is a number or nothing");
  }
  for (const int row : {0, 1}) {
    Require(Is_Number(w.Text2(row).Caption(), locale), "degrees Fahrenheit are a number");
  }
}

/// The text is what the program itself writes for its value, and the value lies in the range.
void Require_Input(const TextField& field, double least, double most, const Locale& locale) {
  const double value = Val(field.Text());
  Require_Of(field, field.Text() == Format(value, locale), "is canonical");
  Require_Of(field, value >= least && value <= most, "is in range");
}

void Require_Inputs(Warmt& w, const Locale& locale) {
  // An up click may pass the upper limits by less than its step of 5 degrees.
  for (FieldArray<TextField>* F : {&w.txtT, &w.txtC}) {
    Require_Input((*F)(0), -50, 120, locale);
    Require_Input((*F)(1), -60, 115, locale);
  }
  Require_Input(w.txtT(2), 0, 100, locale);
  Require_Input(w.txtT(3), 6, 915, locale);
  Require(Val(w.txtC(3).Text()) <= 915, "no pipe is wider");
}

void Require_List(const Module1& module1) {
  const auto& list = module1.Calc_List;
  Require(list.size() >= 2, "the list has its header and the spare element");
  Require(list.back().empty(), "the spare element is empty");
  Require(std::count(list[0].begin(), list[0].end(), '~') >= 19, "nineteen captions");
  for (std::size_t i = 1; i + 1 < list.size(); ++i) {
    Require(list[i].starts_with('\t'), "a saved line begins with a tab");
    Require(std::count(list[i].begin(), list[i].end(), '\t') >= 18, "a saved line has its fields");
  }
}

void Require_Desk(Module1& module1) {
  Desk& desk = module1.desk;
  if (Form* active = desk.Active()) Require(active->Shown(), "the active form is shown");
  if (Form* modal = desk.Modal()) {
    Require(modal->Shown() && modal == desk.Active(), "a modal form lies in front");
  }
  if (Field* focus = desk.Focus()) {
    FormReference& form = Form_Named(focus->form().Name())->of(module1.forms);
    Require(form.Loaded() && &form.Get() == &focus->form(), "the focus is on a form that is there");
  }
}

void Require_Total(Module1& module1) {
  if (!module1.forms.total.Loaded()) return;
  Total& total = *module1.forms.total;
  if (!total.Is_Active()) return;
  // One that was emptied while the screen was open leaves its rows until the next activation.
  Require(!total.Close_On_Activation || total.grdResult.Rows() > 1,
          "an empty list of totals isn't shown");
  // A language that was chosen behind the screen has taken all lines from behind its rows.
  const int elements = static_cast<int>(module1.Calc_List.size());
  Require(total.grdResult.Rows() + 1 == elements || elements == 2, "the grid shows the list");
  Require(total.grdResult.Row() < total.grdResult.Rows(), "the current row is there");
}

}  // namespace

void Require_Rules(Module1& module1) {
  Require_Desk(module1);
  if (!module1.forms.warmt.Loaded()) return;
  Warmt& w = *module1.forms.warmt;
  const bool heat = w.Calc_Mode == "T";
  const bool sheet = module1.Sel_Size == kSheet;
  Require(heat || w.Calc_Mode == "C", "there are two modes");
  Require(module1.Sel_Size >= 0 && module1.Sel_Size <= kSheet, "there are four kinds");
  Require_Fields_Of_Mode(w, heat, sheet);
  Require_Fields_Of_Kind(w, sheet);
  Require_Toolbar(module1, w, heat);
  Require_Results(w, module1.Locale());
  Require_Inputs(w, module1.Locale());
  Require_List(module1);
  Require_Total(module1);
}

std::string Digest(Module1& module1) {
  std::string digest;
  const auto add = [&](const std::string& text) { digest += text + '\n'; };
  for (const NamedForm& named : kNamedForms) {
    FormReference& reference = named.of(module1.forms);
    if (!reference.Loaded()) continue;
    Form& form = reference.Get();
    add(form.Name() + form.Caption() + form.Tag + Printed(form.Shown()) +
        Printed(form.Is_Active()));
    add(Printed(form.Place().width) + Printed(form.Place().height));
    for (const Field* field : form.Fields()) {
      add(Text_Of(module1, *field).value_or("") + Printed(field->Visible()));
    }
  }
  for (const std::string& line : module1.Calc_List) add(line);
  for (const auto selected : module1.Tool_Sel) add(std::to_string(selected));
  add(Printed(module1.Lambda) + Printed(module1.Alpha) + std::to_string(module1.Hr_Day));
  add(std::to_string(module1.Days) + std::to_string(module1.Mtrs) +
      std::to_string(module1.Lang_Index));
  return digest;
}

}  // namespace norvane
