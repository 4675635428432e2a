#include "calc/heat_loss.h"
#include "catalogue/settings_form.h"
#include "frame/shared_state.h"
#include "screen/start_values.h"
#include "screen/warmt.h"

namespace norvane {

void Warmt::Bereken() {
  Calc_Busy = true;
  if (Calc_Mode == "T") {
    Bereken_Warmt();
    Label6.Set_Visible(true);
  } else {
    Bereken_Condens();
    Label6.Set_Visible(false);
  }
  Label4(0).Set_BackStyle(BackStyle::kTransparent);
  Label4(1).Set_BackStyle(BackStyle::kTransparent);
  Colour_Lambda();
  Calc_Busy = false;
}

void Warmt::Colour_Lambda() {
  // The text of the value decides.
  const auto is = [this, locale = module1_.Locale()](float lambda) {
    return Text_Of_Single(module1_.Lambda, locale) == Text_Of_Single(lambda, locale);
  };
  if (is(kDefaultLambda)) {
    Label4(0).Set_BackColor(kGrey);
    return;
  }
  Label4(0).Set_BackStyle(BackStyle::kOpaque);
  const bool known = is(kSecondLambda) && cmdToolBar4(2).Visible();
  Label4(0).Set_BackColor(known ? kGreen : kRed);
}

bool Warmt::Shows_Sheet() const { return module1_.Sel_Size == kSheet; }

void Warmt::Show_Mode(bool heat_loss) {
  for (TextField& field : txtT) field.Set_Visible(heat_loss);
  for (TextField& field : txtC) field.Set_Visible(!heat_loss);
  if (Shows_Sheet()) {
    txtC(3).Set_Visible(false);
    txtT(3).Set_Visible(false);
    Label7(3).Set_Visible(false);
  }
  SpinButton1(2).Set_Visible(heat_loss);
  SpinButton1(4).Set_Visible(!heat_loss);
  Label1(4).Set_Visible(!heat_loss);
  Label1(2).Set_Bold(!heat_loss);
  for (int row = 3; row <= 8; ++row) {
    Label3(row).Set_Visible(heat_loss);
    Label9(row).Set_Visible(heat_loss);
  }
  for (int row = 3; row <= 9; ++row) Label4(row).Set_Visible(heat_loss);
  Label6.Set_Visible(heat_loss);
}

void Warmt::Show_Fahrenheit(int Index, TextField& field) {
  Text2(Index).Set_Caption(Fahr(To_Int16(Val(field.Text())), module1_.Locale()));
}

void Warmt::Default_Diameter(TextField& field) {
  if (Val(field.Text()) != 0) return;
  field.Set_Text(Format(kStartDiameter, module1_.Locale()));
  Text2(3).Set_Caption("1/8");
  Text2(3).Set_Visible(true);
  Label8(3).Set_Visible(true);
}

void Warmt::Default_Temperature(int Index, TextField& field, double degrees) {
  if (Val(field.Text()) != 0) return;
  field.Set_Text(Format(degrees, module1_.Locale()));
  Show_Fahrenheit(Index, field);
}

void Warmt::Show_Lambda_And_Alpha(float lambda_T) {
  const norvane::Locale locale = module1_.Locale();
  const std::string alpha = Format(module1_.Alpha, "##0.0", locale);
  Label4(0).Set_Caption(Format(lambda_T, "0.000", locale));
  Label4(1).Set_Caption(alpha);
  Text4(1).Set_Text(alpha);
}

void Warmt::New_Lambda() {
  Settings& settings = *module1_.forms.settings;
  settings.SSTab1.Set_Tab(Settings::kLambdaTab);
  settings.Show_Modal();
}

void Warmt::New_Alpha() {
  Settings& settings = *module1_.forms.settings;
  settings.SSTab1.Set_Tab(Settings::kAlphaTab);
  settings.Show_Alpha();
  settings.Show_Modal();
}

std::string Warmt::Saving_Heading() const {
  const auto text = [this](TextId id) { return module1_.Text(id); };
  return text(TextId::kSavings) + " (" + text(TextId::kShortHoursPerDay) + ": " +
         Format(module1_.Hr_Day, module1_.Locale()) + ", " + text(TextId::kShortDays) + ": " +
         Str(module1_.Days) + ", " + text(TextId::kLength) + ": " + Str(module1_.Mtrs) + ")";
}

}  // namespace norvane
