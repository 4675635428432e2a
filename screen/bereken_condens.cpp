#include "calc/condensation.h"
#include "calc/heat_loss.h"
#include "calc/sizes.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "screen/inputs.h"
#include "screen/start_values.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

std::int16_t Kept_Index(Module1& module1, const std::string& Key, const std::string& Default) {
  return To_Int16(Val(Ini_Read(module1, kSettingsFile, kInitSection, Key, Default)));
}

}  // namespace

void Warmt::Bereken_Condens() {
  Show_Mode(false);
  txtC(1).Set_Locked(true);
  txtC(1).Set_BackColor(kGrey);
  txtC(2).Set_BackColor(kGrey);
  txtC(2).Set_Bold(true);
  Label7(4).Set_Visible(true);
  if (First_Condens) Condens_Defaults();

  const CondensResult result = Condensation(Condensation_Input(module1_, *this), module1_.Locale());
  module1_.Alpha = result.Alpha;

  const norvane::Locale locale = module1_.Locale();
  const std::int16_t whole_mm = To_Int16(result.d_mm);
  txtC(2).Set_Text(Format(result.d_mm, "##0.0", locale));
  Text2(2).Set_Caption(InchIso(whole_mm, module1_.Sel_Size));
  Show_Or_Hide_Inch(2);
  Show_Lambda_And_Alpha(result.lambda_T);
  Label4(2).Set_Caption(Format(result.T_surf, "##0.0", locale));
  GetPic(module1_.Sel_Size, whole_mm);
}

void Warmt::Condens_Defaults() {
  const norvane::Locale locale = module1_.Locale();
  Default_Temperature(0, txtC(0), 10);
  Default_Temperature(1, txtC(1), kStartAmbient);
  if (Val(txtC(2).Text()) == 0) txtC(2).Set_Text(Format(0.7, locale));
  if (txtC(4).Text().empty()) txtC(4).Set_Text(Format(kStartHumidity, locale));
  Idx_A1 = Kept_Index(module1_, "A1", "17");
  Idx_A4 = Kept_Index(module1_, "A4", "9");
  Default_Diameter(txtC(3));
  First_Condens = false;
}

}  // namespace norvane
