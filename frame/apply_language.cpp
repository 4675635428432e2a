#include <algorithm>

#include "catalogue/settings_form.h"
#include "data/runtime_error.h"
#include "frame/lang_form.h"
#include "frame/language.h"
#include "frame/shared_state.h"
#include "frame/text_id.h"
#include "screen/warmt.h"
#include "totals/calculation_list.h"

namespace norvane {
namespace {

/// A caption field of an array or alone, and the text that it shows.
struct NumberedText {
  CaptionField& field;
  TextId text;
};

void Set_Captions(const Module1& module1, std::initializer_list<NumberedText> texts) {
  for (const NumberedText& entry : texts) entry.field.Set_Caption(module1.Text(entry.text));
}

void Set_Main_Captions(Module1& module1, Warmt& warmt) {
  std::string name = module1.Text(TextId::kLanguageName);
  std::replace(name.begin(), name.end(), '-', ' ');
  warmt.Label10.Set_Caption(name);
  warmt.lblMenu(0).Set_Caption("");
  warmt.Label7(4).Set_Caption("");
  const std::int16_t kind = module1.Sel_Size;
  const TextId heat_flow_unit = Heat_Flow_Unit_Text(kind);
  auto& w = warmt;
  Set_Captions(module1, {{w.lblMenu(1), TextId::kMenuLanguage},
                         {w.lblMenu(2), TextId::kMenuAddresses},
                         {w.lblMenu(3), TextId::kMenuExit},
                         {w.Label1(0), TextId::kMediumTemperature},
                         {w.Label1(1), TextId::kAmbientTemperature},
                         {w.Label1(2), TextId::kInsulationThickness},
                         {w.Label1(3), TextId::kPipeDiameter},
                         {w.Label1(4), TextId::kRelativeHumidity},
                         {w.Label7(0), TextId::kCelsius},
                         {w.Label7(1), TextId::kCelsius},
                         {w.Label7(2), TextId::kMillimetre},
                         {w.Label7(3), TextId::kMillimetre},
                         {w.Label8(0), TextId::kFahrenheit},
                         {w.Label8(1), TextId::kFahrenheit},
                         {w.Label8(2), TextId::kInch},
                         {w.Label8(3), TextId::kInch},
                         {w.Label0, Kind_Name_Text(kind)},
                         {w.Label3(0), TextId::kConductivity},
                         {w.Label3(1), TextId::kTransferCoefficient},
                         {w.Label3(2), TextId::kSurfaceTemperature},
                         {w.Label3(3), TextId::kBareHeatFlow},
                         {w.Label3(4), TextId::kInsulatedHeatFlow},
                         {w.Label3(5), TextId::kSaving},
                         {w.Label3(6), TextId::kGasSaving},
                         {w.Label3(7), TextId::kOilSaving},
                         {w.Label3(8), TextId::kElectricitySaving},
                         {w.Label9(0), TextId::kConductivityUnit},
                         {w.Label9(1), TextId::kTransferUnit},
                         {w.Label9(2), TextId::kCelsius},
                         {w.Label9(3), heat_flow_unit},
                         {w.Label9(4), heat_flow_unit},
                         {w.Label9(5), heat_flow_unit},
                         {w.Label9(6), TextId::kGasUnit},
                         {w.Label9(7), TextId::kOilUnit},
                         {w.Label9(8), TextId::kElectricityUnit}});
  warmt.Label6.Set_Caption(warmt.Saving_Heading());
}

/// The current language's font has to be one that the system offers.
void Test_Font(Module1& module1) {
  auto& name = module1.languages.Lang_FontName[static_cast<std::size_t>(module1.Lang_Index)];
  const auto installed = module1.platform.Font_Names();
  if (!installed) return;
  const std::string wanted = name.value_or("");
  if (std::find(installed->begin(), installed->end(), wanted) == installed->end())
    name = kDefaultFontName;
}

void Set_Main_Fonts(Module1& module1, Warmt& warmt) {
  const Font small = Language_Font(module1, module1.Lang_Index, 8);
  const Font normal = Language_Font(module1, module1.Lang_Index, 9);
  const Font large = Language_Font(module1, module1.Lang_Index, 10);
  for (auto* labels : {&warmt.Label7, &warmt.Label8, &warmt.Label3, &warmt.Label9}) {
    for (CaptionField& label : *labels) label.Set_Font(normal);
  }
  for (const int row : {0, 1, 3, 4}) warmt.Label1(row).Set_Font(normal);
  warmt.Label0.Set_Font(normal);
  warmt.Label6.Set_Font(normal);
  Font thickness = normal;
  thickness.bold = module1.Tool_Sel[kModeGroup] == 1;
  warmt.Label1(2).Set_Font(thickness);
  warmt.Label10.Set_Font(large);
  for (CaptionField& entry : warmt.lblMenu) entry.Set_Font(large);
  warmt.LblTooltip.Set_Font(small);
}

}  // namespace

Font Language_Font(const Module1& module1, int slot, double size) {
  const auto& name = module1.languages.Lang_FontName[static_cast<std::size_t>(slot)];
  return {name.value_or(""), size, false, module1.Font_Charset(slot)};
}

void Apply_Language(Module1& module1) {
  Warmt& warmt = *module1.forms.warmt;
  const auto& code = module1.languages.Lang_Code[static_cast<std::size_t>(module1.Lang_Index)];
  warmt.cmdToolBar4(2).Set_Visible(code == "de");
  setHeaders(module1);
  Set_Main_Captions(module1, warmt);
  Test_Font(module1);
  Set_Main_Fonts(module1, warmt);
  Apply_Language_Settings(module1);
  Apply_Language_List(module1);
}

void Apply_Language_Settings(Module1& module1) {
  Settings& settings = *module1.forms.settings;
  constexpr TextId kTabTexts[] = {TextId::kSavings, TextId::kNewLambda, TextId::kNewAlpha};
  for (int tab = 0; tab < 3; ++tab) {
    settings.SSTab1.Set_TabCaption(tab, module1.Text(kTabTexts[tab]));
  }
  Set_Captions(module1, {{module1.forms.warmt->Label1(5), TextId::kLength},
                         {settings.Label2, TextId::kAlphaPrompt},
                         {settings.Label7, TextId::kExpressedIn},
                         {settings.Label6(0), TextId::kHoursPerDay},
                         {settings.Label6(1), TextId::kNumberOfDays}});
  settings.Command1.Set_Caption(module1.Text(TextId::kOk));
  settings.Command2.Set_Caption(module1.Text(TextId::kCancel));

  const auto slot = static_cast<std::size_t>(module1.Lang_Index);
  const auto& code = module1.languages.Lang_Code[slot];
  const double size = code == "ta" || code == "ru" ? 9 : 10;
  Font font;
  try {
    font = Language_Font(module1, module1.Lang_Index, size);
  } catch (const RuntimeError&) {
    // Failures are passed over here: the font comes without its character set.
    font = {module1.languages.Lang_FontName[slot].value_or(""), size, false, 0};
  }
  for (Field* field : std::initializer_list<Field*>{
           &settings.SSTab1, &settings.Label1(0), &settings.Label7, &settings.Label6(0),
           &settings.Label6(1), &settings.Command1, &settings.Command2}) {
    field->Set_Font(font);
  }
}

void Apply_Language_List(Module1& module1) {
  Lang& lang = *module1.forms.lang;
  for (int i = 0; i <= lang.Label2.UBound(); ++i) {
    const auto slot = static_cast<std::size_t>(i);
    if (module1.languages.Lang_Code[slot].value_or("").empty()) break;
    const std::string& name = module1.languages.Text(i, TextId::kLanguageName);
    const std::size_t dash = name.find('-');
    lang.Label2(i).Set_Caption(name.substr(0, dash));
    lang.Label2(i).Set_Visible(!name.empty());
    if (i <= lang.Label3.UBound()) {
      lang.Label3(i).Set_Caption(dash == std::string::npos ? "" : name.substr(dash + 1));
      lang.Label3(i).Set_Visible(true);
    }
    lang.Label2(i).Set_Font(Language_Font(module1, i, 9));
  }
}

}  // namespace norvane
