#include "totals/total_form.h"

#include <algorithm>
#include <iterator>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "data/text.h"
#include "frame/language.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "screen/warmt.h"
#include "totals/calculation_list.h"

namespace norvane {
namespace {

// All in twips.
constexpr double kBesideWarmt = 1600;
constexpr double kBelowWarmt = 1800;
constexpr double kNarrowerThanWarmt = 1800;
constexpr double kLowerThanWarmt = 3000;
constexpr double kGridTop = 420;
constexpr double kSumsHeight = 700;
constexpr double kSideBorders = 120;
constexpr double kLeastInnerHeight = 1200;
constexpr double kFirstColumnWidth = 300;
constexpr double kColumnWidth = 2000;
constexpr double kSumLetterWidth = 90;

}  // namespace

Total::Total(Module1& module1) : Form(module1.desk, "Total", 0, 0), module1_(module1) {
  Set_Caption("Total Calculation");
  grdResult.Set_Place({0, kGridTop, 0, 0});
  Label1.panel = &picTotal;
  grdResult.On_Mouse_Up = [this] { Ask_To_Delete(); };
  grdResult.On_Click = grdResult.On_Mouse_Up;
  // The one button of the toolbar has the key "ToExcel".
  Toolbar1.On_Click = [this] { Xls_Export(kTotalWorkbook); };
}

void Total::Load() {
  Close_On_Activation = false;
  First_Activation = true;
  Total_Init();
  Fill_Total_Table();
}

void Total::Activate() {
  // The flag is of the fill before: what this one finds closes the form at the next activation.
  if (Close_On_Activation) module1_.forms.total.Unload();
  if (First_Activation) {
    First_Activation = false;
  } else {
    Fill_Total_Table();
  }
}

void Total::Resize() {
  picTotal.Set_Place(
      {picTotal.Place().left, picTotal.Place().top, Place().width - kSideBorders, kSumsHeight});
  const double inner = Place().height - kGridTop;
  if (inner < kLeastInnerHeight) return;
  const norvane::Place grid{grdResult.Place().left, grdResult.Place().top,
                            Place().width - kSideBorders, inner - kSumsHeight};
  grdResult.Set_Place(grid);
  picTotal.Set_Place(
      {picTotal.Place().left, grid.top + grid.height, picTotal.Place().width, kSumsHeight});
}

void Total::Close_Box() { module1_.forms.total.Unload(); }

void Total::Total_Init() {
  // On the way out the main screen is unloaded already and is not to come back.
  const norvane::Place warmt = module1_.forms.warmt.Last_Place();
  Set_Place({warmt.left + kBesideWarmt, warmt.top + kBelowWarmt, warmt.width - kNarrowerThanWarmt,
             warmt.height - kLowerThanWarmt});
  norvane::Font font = Label1.Font();
  font.name = Language_Font(module1_, module1_.Lang_Index, font.size).name;
  font.bold = true;
  Label1.Set_Font(font);
}

void Total::Fill_Total_Table() {
  const norvane::Font font = Language_Font(module1_, module1_.Lang_Index, 8);
  Label1.Set_Caption("");
  grdResult.Set_Font(font);
  if (!Has_Saved_Lines(module1_) || module1_.Calc_List[0].empty()) {
    First_Activation = false;
    Close_On_Activation = true;
    return;
  }
  Fill_Captions();
  Fill_Lines();
  Show_Sums();
}

void Total::Fill_Captions() {
  auto captions = Split(module1_.Calc_List[0], '~');
  std::vector<double> widths(captions.size(), kColumnWidth);
  widths[0] = kFirstColumnWidth;
  captions[0].clear();
  grdResult.Start(std::move(captions), std::move(widths));
}

void Total::Fill_Lines() {
  double* const sums[] = {&module1_.Total_Sum1, &module1_.Total_Sum2, &module1_.Total_Sum3};
  for (double* sum : sums) *sum = 0;
  const norvane::Locale locale = module1_.Locale();
  const int first_summed = grdResult.Cols() - 3;
  for (std::size_t i = 1; i + 1 < module1_.Calc_List.size(); ++i) {
    grdResult.Add_Item(module1_.Calc_List[i]);
    // By place from the end of the row, whatever the line holds there.
    int column = first_summed;
    for (double* sum : sums) {
      *sum += To_Number(grdResult.Cell(static_cast<int>(i), column++), locale);
    }
  }
}

void Total::Show_Sums() {
  const norvane::Locale locale = module1_.Locale();
  const auto sum = [&](TextId name, double value) {
    return "   " + module1_.Text(name) + " = " + Format(value, locale);
  };
  Sums_Text = module1_.Text(TextId::kTotal) + sum(TextId::kGasSum, module1_.Total_Sum1) +
              sum(TextId::kOilSum, module1_.Total_Sum2) +
              sum(TextId::kElectricitySum, module1_.Total_Sum3);
  const norvane::Place& place = Label1.Place();
  Label1.Set_Place({place.left, place.top, static_cast<double>(Sums_Text.size()) * kSumLetterWidth,
                    place.height});
  Label1.Set_Caption(Sums_Text);
}

void Total::Ask_To_Delete() {
  const auto [low, high] = std::minmax({grdResult.Row(), grdResult.RowSel()});
  if (low == 0) return;  // no line is selected
  // Every row that stays needs its line, and a change of language takes the lines from behind them.
  const int last_row = grdResult.Rows() - 1;
  const int last_kept = high < last_row ? last_row : low - 1;
  if (last_kept >= std::ssize(module1_.Calc_List)) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  const int deleted = high - low + 1;
  const MessageAnswer answer =
      module1_.Message(kTitle, "Delete " + std::to_string(deleted) + " Records",
                       MessageIcon::kQuestion, MessageButtons::kYesNo);
  if (answer == MessageAnswer::kYes) {
    Delete_Lines(low, high);
  } else {
    Keep_Lines();
  }
}

void Total::Delete_Lines(int low, int high) {
  // What the grid shows is what is kept: a line that was added behind its back goes too.
  auto& list = module1_.Calc_List;
  list.resize(static_cast<std::size_t>(grdResult.Rows()));
  list.erase(list.begin() + low, list.begin() + high + 1);
  list.emplace_back();
  if (Has_Saved_Lines(module1_)) {
    Fill_Total_Table();
    grdResult.Set_Row(low - 1);
  } else {
    module1_.forms.total.Unload();
  }
}

void Total::Keep_Lines() {
  if (grdResult.Rows() > 2) {
    grdResult.Set_Row(grdResult.Row());
  } else {
    module1_.forms.total.Unload();
  }
}

}  // namespace norvane
