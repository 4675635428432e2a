#include "calc/heat_loss.h"
#include "calc/sizes.h"
#include "catalogue/products.h"
#include "catalogue/settings_form.h"
#include "frame/shared_state.h"
#include "frame/text_id.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr int kPipeProducts = 1;
constexpr int kSheetProducts = 2;

}  // namespace

void Warmt::Select_Kind(std::int16_t kind) {
  Calc_Busy = true;
  Text4(1).Set_Text(Format(Default_Alpha(kSteelPipe), module1_.Locale()));
  module1_.Sel_Size = kind;
  if (kind == kSheet) {
    Show_Sheet_Rows();
  } else {
    Show_Pipe_Rows(kind);
  }
  Label0.Set_Caption(module1_.Text(Kind_Name_Text(kind)));
  for (int row = 3; row <= 5; ++row) {
    Label9(row).Set_Caption(module1_.Text(Heat_Flow_Unit_Text(kind)));
  }
  Show_Common_Rows();
  Bereken();
  Calc_Busy = false;
}

void Warmt::Show_Pipe_Rows(std::int16_t kind) {
  Fill_Product_Combo(module1_, kPipeProducts);
  Label1(3).Set_Visible(true);
  txtC(3).Set_Visible(true);
  Label7(3).Set_Visible(true);
  txtT(3).Set_Visible(true);
  for (TextField* field : {&txtC(3), &txtT(3)}) {
    field->Set_Text(Format(Pipe_Sizes(kind).front().mm, module1_.Locale()));
    Show_Inch_Of_Diameter(*field);
  }
  Show_Or_Hide_Inch(3);
  SpinButton1(3).Set_Visible(true);
  if (kind != kSteelPipe) {
    const std::string alpha = Format(Default_Alpha(kind), module1_.Locale());
    Text4(1).Set_Text(alpha);
    module1_.forms.settings->Text3.Set_Text(alpha);
  }
}

void Warmt::Show_Sheet_Rows() {
  Fill_Product_Combo(module1_, kSheetProducts);
  for (Field* field : std::initializer_list<Field*>{&Label1(3), &txtC(3), &Label7(3), &txtT(3),
                                                    &Text2(3), &Label8(3), &SpinButton1(3)}) {
    field->Set_Visible(false);
  }
}

void Warmt::Show_Common_Rows() {
  // Both modes' fields; the calculation hides those that aren't the mode's.
  for (int row = 0; row <= 1; ++row) {
    Text2(row).Set_Visible(true);
    Label8(row).Set_Visible(true);
    SpinButton1(row).Set_Visible(true);
  }
  for (int row = 0; row <= 2; ++row) {
    Label1(row).Set_Visible(true);
    txtC(row).Set_Visible(true);
    Label7(row).Set_Visible(true);
    txtT(row).Set_Visible(true);
    Label3(row).Set_Visible(true);
    Label4(row).Set_Visible(true);
    Label9(row).Set_Visible(true);
  }
  Label0.Set_Visible(true);
  Picture2.Set_Visible(true);
}

void Warmt::Select_Lambda(int index) {
  switch (index) {
    case 0:
      New_Lambda();
      break;
    case 1:
      module1_.Lambda = kDefaultLambda;
      break;
    case 2:
      module1_.Lambda = kSecondLambda;
      break;
    default:
      return;
  }
  Select_Kind(module1_.Sel_Size);
}

void Warmt::Click_Combo1() {
  const std::string& lambda = Product_Of(module1_, Combo1.Text()).Lambda();
  module1_.forms.settings->Text1.Set_Text(lambda);
}

void Warmt::Show_Saving_Settings() {
  Settings& settings = *module1_.forms.settings;
  settings.SSTab1.Set_Tab(Settings::kSavingTab);
  settings.Show_Modal();
  Select_Kind(module1_.Sel_Size);
}

}  // namespace norvane
