#include <cmath>
#include <cstdint>

#include "calc/heat_loss.h"
#include "calc/sizes.h"
#include "catalogue/products.h"
#include "data/string_table.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "screen/start_values.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

std::int16_t Number_In(int id) { return To_Int16(Val(String_Table(id))); }

}  // namespace

void Warmt::Init() {
  Set_Caption(Title_And_Version(kRelease));
  Init_toolbar();
  First_Warmt = true;
  First_Condens = true;
  Fill_Group_Sizes(module1_);
  Load_Product_Group(module1_, 1);
  Load_Product_Group(module1_, 2);
  Idx_A4 = 0;
  Fill_Dew_Point_Arrays();
  module1_.languages.Lang_FontName.fill(kDefaultFontName);
  module1_.Lang_Index = 0;
  module1_.Sel_Size = kSteelPipe;
  module1_.Lambda = kDefaultLambda;

  // The first of these calculates while there is no mode yet, which counts as condensation.
  Click_cmdToolBar1(0);
  Click_cmdToolBarT();
  Click_cmdToolBar4(1);
}

void Warmt::Init_toolbar() {
  const norvane::Place& label = LblTooltip.Place();
  LblTooltip.Set_Place({label.left, 0, label.width, label.height});
  picToolTip.Set_Place({0, 0, label.width + 100, label.height});
  // Other values than the first presses select, so that each of those swaps its pictures.
  module1_.Tool_Sel[kKindGroup] = 1;
  module1_.Tool_Sel[kModeGroup] = 1;
  module1_.Tool_Sel[kLambdaGroup] = 0;
}

void Warmt::Fill_Dew_Point_Arrays() {
  const int rows = Number_In(401);
  Dew_Temps.assign(static_cast<std::size_t>(rows) + 1, std::nullopt);
  for (int i = 1; i <= rows; ++i) {
    auto& temperature = Dew_Temps[static_cast<std::size_t>(i)];
    temperature = Val(String_Table(Dew_Cell_Id(i, 1)));
    if (temperature == kStartAmbient) {
      Idx_A1 = static_cast<std::int16_t>(i);
      Ini_Write(module1_, kSettingsFile, kInitSection, "A1", Str(i));
    }
  }
  const int columns = Number_In(402);
  Dew_Hums.assign(static_cast<std::size_t>(columns) + 1, std::nullopt);
  for (int j = 1; j <= columns; ++j) {
    auto& humidity = Dew_Hums[static_cast<std::size_t>(j)];
    humidity = Val(String_Table(Dew_Cell_Id(0, j)));
    if (humidity == kStartHumidity) {
      Idx_A4 = static_cast<std::int16_t>(j);
      Ini_Write(module1_, kSettingsFile, kInitSection, "A4", Str(j));
    }
  }
}

void Warmt::Init_results() {
  // The diameter of mode "T" in both modes, and the electricity saving keeps its text.
  txtT(3).Set_Text(Format(kStartDiameter, module1_.Locale()));
  for (int i = 0; i <= 8; ++i) Label4(i).Set_Caption("");
}

void Warmt::GetPic(std::int16_t Soort, std::int16_t Dikte) {
  if (Soort == kSheet) {
    Picture2.Set_Picture(Dikte == 0 ? 19 : 20);
    return;
  }
  constexpr int kClassSteps = 5;
  int thickness_class = 0;
  while (thickness_class < kClassSteps &&
         Dikte > Thick_Steps()[static_cast<std::size_t>(thickness_class)]) {
    ++thickness_class;
  }
  Picture2.Set_Picture(thickness_class * 3 + Soort + 1);
}

void Warmt::Color(float Wrd, std::int16_t Index) {
  const double size = std::abs(Wrd);
  const auto shade = [&](double step) {
    return static_cast<std::uint8_t>(To_Int16(255 - step * size));
  };
  if (Wrd == 0) {
    Label1(Index).Set_BackColor({255, 255, 255});
  } else if (Wrd > 0) {
    if (size <= 125) Label1(Index).Set_BackColor({255, shade(2), shade(2)});
  } else if (size <= 80) {
    Label1(Index).Set_BackColor({shade(3), shade(3), 255});
  }
}

}  // namespace norvane
