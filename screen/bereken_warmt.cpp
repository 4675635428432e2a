#include "calc/heat_loss.h"
#include "frame/shared_state.h"
#include "screen/inputs.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

void Show_Savings(Warmt& warmt, const std::optional<Savings>& savings, const Locale& locale) {
  if (!savings) {
    // The percentage stays that of the calculation before.
    for (int i = 6; i <= 9; ++i) warmt.Label4(i).Set_Caption(Format(0, locale));
    return;
  }
  constexpr const char* kMask = "####0.00";
  warmt.Label4(6).Set_Caption(Format(savings->difference, kMask, locale));
  warmt.Label4(5).Set_Caption(Format(savings->Saving_Pct, locale) + "%");
  warmt.Label4(7).Set_Caption(Format(savings->gas, kMask, locale));
  warmt.Label4(8).Set_Caption(Format(savings->oil, kMask, locale));
  warmt.Label4(9).Set_Caption(Format(savings->electricity, kMask, locale));
}

}  // namespace

void Warmt::Bereken_Warmt() {
  Show_Mode(true);
  txtT(1).Set_Locked(false);
  txtT(1).Set_BackColor(kSystemWindow);
  txtT(2).Set_BackColor(kSystemWindow);
  txtT(2).Set_Bold(false);
  if (First_Warmt) Warmt_Defaults();

  const HeatLossResult result = Heat_Loss(Heat_Loss_Input(module1_, *this), module1_.Locale());
  module1_.Alpha = result.Alpha;
  constexpr TextId kPipeTexts[] = {TextId::kSaving, TextId::kGasSaving, TextId::kOilSaving,
                                   TextId::kElectricitySaving};
  constexpr TextId kSheetTexts[] = {TextId::kSheetSaving, TextId::kSheetGasSaving,
                                    TextId::kSheetOilSaving, TextId::kSheetElectricitySaving};
  for (int i = 0; i < 4; ++i) {
    Label3(5 + i).Set_Caption(module1_.Text((Shows_Sheet() ? kSheetTexts : kPipeTexts)[i]));
  }

  const norvane::Locale locale = module1_.Locale();
  Show_Lambda_And_Alpha(result.lambda_T);
  Label4(2).Set_Caption(Format(result.T_surf, "##0.0", locale));
  Label4(3).Set_Caption(Format(result.Q_bare, "####0.0", locale));
  Label4(4).Set_Caption(Format(result.Q_ins, "####0.0", locale));
  Show_Savings(*this, result.savings, locale);
  Label6.Set_Caption(Saving_Heading());
  GetPic(module1_.Sel_Size, To_Int16(Val(txtT(2).Text())));
}

void Warmt::Warmt_Defaults() {
  // A temperature of 0 is taken for an empty field.
  Default_Temperature(0, txtT(0), 80);
  Default_Temperature(1, txtT(1), 15);
  txtT(2).Set_Text(Format(0, module1_.Locale()));
  Text2(2).Set_Caption("");
  Text2(2).Set_Visible(false);
  Label8(2).Set_Visible(false);
  Default_Diameter(txtT(3));
  First_Warmt = false;
}

}  // namespace norvane
