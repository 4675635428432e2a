#include "catalogue/address_form.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "frame/shared_state.h"
#include "frame/text_id.h"
#include "screen/warmt.h"
#include "totals/calculation_list.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

// The texts that the tooltips show, by group and button.
constexpr TextId kTooltips[][4] = {
    {TextId::kShowTotals},
    {Kind_Name_Text(kSteelPipe), Kind_Name_Text(kCopperTube), Kind_Name_Text(kMetricPipe),
     Kind_Name_Text(kSheet)},
    {TextId::kHeatLossMode, TextId::kCondensationMode},
    {TextId::kNewAlpha},
    {TextId::kNewLambda, TextId::kDefaultLambdaButton, TextId::kSecondLambdaButton},
    {TextId::kSavingSettings}};

}  // namespace

void Warmt::Connect_Toolbar() {
  const auto connect_hover = [this](int group, int index, Button& button) {
    tooltips_[&button] = kTooltips[group][index];
    button.On_Hover = [this, group, index, &button] { Hover_Button(group, index, button); };
  };
  const auto connect = [&](int group, FieldArray<Button>& buttons,
                           void (Warmt::*click)(int Index)) {
    for (Button& button : buttons) {
      button.On_Click = [this, click, index = button.Index()] { (this->*click)(index); };
      connect_hover(group, button.Index(), button);
    }
  };
  connect(kTotalGroup, cmdToolBar0, &Warmt::Click_cmdToolBar0);
  connect(kKindGroup, cmdToolBar1, &Warmt::Click_cmdToolBar1);
  connect(kAlphaGroup, cmdToolBar3, &Warmt::Click_cmdToolBar3);
  connect(kLambdaGroup, cmdToolBar4, &Warmt::Click_cmdToolBar4);
  connect(kSavingGroup, cmdToolBar5, &Warmt::Click_cmdToolBar5);
  cmdToolBarT.On_Click = [this] { Click_cmdToolBarT(); };
  cmdToolBarC.On_Click = [this] { Click_cmdToolBarC(); };
  connect_hover(kModeGroup, 0, cmdToolBarT);
  connect_hover(kModeGroup, 1, cmdToolBarC);
  LblTooltip.On_Click = [this] { Click_LblTooltip(); };
  picTotal.On_Click = [this] { module1_.forms.total->Show(); };
  for (CaptionField& entry : lblMenu) {
    entry.On_Click = [this, index = entry.Index()] { Click_lblMenu(index); };
  }
}

TextId Warmt::Tooltip_Of(const Button& button) const { return tooltips_.at(&button); }

void Warmt::Press(int group, FieldArray<Button>& buttons, int Index) {
  std::int16_t& selected = module1_.Tool_Sel[static_cast<std::size_t>(group)];
  if (selected != Index) {
    buttons(selected).Lose_Selection();
    buttons(Index).Take_Selection();
  }
  selected = static_cast<std::int16_t>(Index);
  picToolTip.Set_Visible(false);
}

void Warmt::Click_cmdToolBar0(int Index) {
  Press(kTotalGroup, cmdToolBar0, Index);
  module1_.forms.total->Show();
}

void Warmt::Click_cmdToolBar1(int Index) {
  Label4(1).Set_BackColor(kGrey);
  Press(kKindGroup, cmdToolBar1, Index);
  const auto kind = static_cast<std::int16_t>(Index);
  module1_.Alpha = Default_Alpha(kind);
  Select_Kind(kind);
}

void Warmt::Click_cmdToolBarT() { Press_Mode(true); }

void Warmt::Click_cmdToolBarC() { Press_Mode(false); }

void Warmt::Press_Mode(bool heat_loss) {
  Calc_Mode = heat_loss ? "T" : "C";
  cmdAdd.Set_Visible(heat_loss);
  picTotal.Set_Visible(heat_loss);
  if (heat_loss) {
    Bereken_Warmt();
  } else {
    Bereken_Condens();
  }
  const std::int16_t value = heat_loss ? 0 : 1;
  if (module1_.Tool_Sel[kModeGroup] != value) {
    (heat_loss ? cmdToolBarC : cmdToolBarT).Lose_Selection();
    (heat_loss ? cmdToolBarT : cmdToolBarC).Take_Selection();
  }
  module1_.Tool_Sel[kModeGroup] = value;
  picToolTip.Set_Visible(false);
}

void Warmt::Click_cmdToolBar3(int Index) {
  Press(kAlphaGroup, cmdToolBar3, Index);
  New_Alpha();
}

void Warmt::Click_cmdToolBar4(int Index) {
  Press(kLambdaGroup, cmdToolBar4, Index);
  Select_Lambda(Index);
}

void Warmt::Click_cmdToolBar5(int Index) {
  Press(kSavingGroup, cmdToolBar5, Index);
  Show_Saving_Settings();
}

void Warmt::Hover_Button(int group, int Index, const Button& button) {
  Hover_Group = static_cast<std::int16_t>(group);
  Hover_Index[static_cast<std::size_t>(group)] = static_cast<std::int16_t>(Index);
  LblTooltip.Set_Caption(module1_.Text(Tooltip_Of(button)));
  const norvane::Place& at = button.Place();
  const norvane::Place& strip = picToolbar.Place();
  const norvane::Place& box = picToolTip.Place();
  picToolTip.Set_Place({at.left + strip.left + 150, strip.top + 25 + at.top + at.height - 100,
                        box.width, box.height});
  picToolTip.Set_Visible(true);
}

void Warmt::Click_LblTooltip() {
  Button* const buttons[] = {
      &cmdToolBar0(0),
      &cmdToolBar1(Hover_Index[kKindGroup]),
      Hover_Index[kModeGroup] == 0 ? &cmdToolBarT : &cmdToolBarC,
      &cmdToolBar3(0),
      &cmdToolBar4(Hover_Index[kLambdaGroup]),
      &cmdToolBar5(0),
  };
  Button& button = *buttons[Hover_Group];
  module1_.desk.Set_Focus(button);
  button.On_Click();
  picToolTip.Set_Visible(false);
}

void Warmt::Click_lblMenu(int Index) {
  switch (Index) {
    case 1:
      Open_Language();
      break;
    case 2:
      Show_Address_Dialog(module1_);
      break;
    case 3:
      Leave();
    default:
      break;
  }
}

void Warmt::Click_cmdAdd() {
  picTotal.Set_Visible(true);
  cmdToolBar0(0).Set_Visible(true);
  Fill_Calculation_list(module1_, Combo1.Text());
}

void Warmt::Open_Language() {
  Lang& lang = *module1_.forms.lang;
  lang.Tag = kNoTimers;
  lang.imgExit.Set_Visible(true);
  lang.OK.Set_Visible(true);
  Show_Lang_Dialog(module1_);
}

}  // namespace norvane
