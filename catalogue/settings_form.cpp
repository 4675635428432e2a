#include "catalogue/settings_form.h"

#include <algorithm>

#include "calc/heat_loss.h"
#include "calc/limits.h"
#include "frame/language.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr double kSettingsWidth = 6000;  // twips
constexpr double kSettingsHeight = 3600;

std::string With_Point(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

float Number_With_Comma(const TextField& field) { return To_Single(Val(With_Point(field.Text()))); }

}  // namespace

Settings::Settings(Module1& module1)
    : Form(module1.desk, "Settings", kSettingsWidth, kSettingsHeight), module1_(module1) {
  Set_Caption("Settings");
  tabs = &SSTab1;
  for (Field* field : std::initializer_list<Field*>{&Label7, &Label6(0), &Label6(1), &Text2(0),
                                                    &Text2(1), &UpDown1_0, &UpDown1_1}) {
    field->on_tab = kSavingTab;
  }
  Text1.on_tab = kLambdaTab;
  Label1(0).on_tab = kAlphaTab;
  Label2.on_tab = kAlphaTab;
  Text3.on_tab = kAlphaTab;

  Label6(0).Set_Caption("aantal uren per dag");
  Label6(1).Set_Caption("aantal dagen");
  Label7.Set_Caption("uitgedrukt in:");
  Label1(0).Set_Caption("New Alpha Value:");
  Label2.Set_Caption("Geef nieuwe alpha waarde in:");
  Command1.Set_Caption("OK");
  Command2.Set_Caption("Cancel");

  SSTab1.On_Click = [this] { Show_Alpha(); };
  Command1.On_Click = [this] { Click_Command1(); };
  Command2.On_Click = [this] { Click_Command2(); };
}

void Settings::Load() {
  Apply_Language_Settings(module1_);
  Read_Settings(module1_);
  const norvane::Locale locale = module1_.Locale();
  Text1.Set_Text(Format(module1_.Lambda + kLambdaDifference, "0.000", locale));
  Text2(0).Set_Text(Format(module1_.Hr_Day, locale));
  Text2(1).Set_Text(Format(module1_.Days, locale));
}

void Settings::Close_Box() { Click_Command2(); }

void Settings::Show_Alpha() {
  Text3.Set_Text(With_Point(Text_Of_Single(module1_.Alpha, module1_.Locale())));
}

void Settings::Click_Command1() {
  if (Text1.Text().empty()) return;
  module1_.Lambda = Number_With_Comma(Text1);
  if (module1_.Lambda > kMostLambda || module1_.Lambda < kLeastLambda) {
    module1_.Lambda = kDefaultLambda;
    module1_.forms.settings.Unload();
    return;
  }
  module1_.Lambda = To_Single(module1_.Lambda - kLambdaDifference);
  module1_.Hr_Day = To_Int16(Val(Text2(0).Text()));
  module1_.Days = To_Int16(Val(Text2(1).Text()));
  Ini_Write(module1_, kSettingsFile, kSettingSection, "Hr_Day", Str(module1_.Hr_Day));
  Ini_Write(module1_, kSettingsFile, kSettingSection, "Days", Str(module1_.Days));
  // The write below may run a calculation, which sets the shared value anew.
  const float alpha = Number_With_Comma(Text3);
  module1_.Alpha = alpha;
  module1_.forms.warmt->Text4(1).Set_Text(Text_Of_Single(alpha, module1_.Locale()));
  Mark_Alpha(alpha);
  module1_.forms.settings.Unload();
}

void Settings::Mark_Alpha(float alpha) {
  CaptionField& shown = module1_.forms.warmt->Label4(1);
  shown.Set_BackColor(alpha == Default_Alpha(module1_.Sel_Size) ? kGrey : kRed);
  shown.Set_BackStyle(BackStyle::kOpaque);
}

void Settings::Click_Command2() { module1_.forms.settings.Unload(); }

}  // namespace norvane
