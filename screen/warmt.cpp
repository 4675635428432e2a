#include "screen/warmt.h"

#include "frame/language.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "screen/model/user_event.h"
#include "totals/calculation_list.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

constexpr double kBandHeight = 500;  // twips
constexpr double kBandAboveFoot = 800;

}  // namespace

void Warmt::Load() {
  Calc_Busy = true;
  Init();
  Find_Languages(module1_);
  Select_Start_Language(module1_);
  Read_Settings(module1_);
  Centre();
  Apply_Language(module1_);
  Calc_Busy = false;
  Select_Kind(0);
  txtmtrs.Set_Text("1");
}

void Warmt::Activate() {
  const bool has_lines = Has_Saved_Lines(module1_);
  picTotal.Set_Visible(has_lines);
  cmdToolBar0(0).Set_Visible(has_lines);
}

void Warmt::Resize() {
  Label5.Set_Place({0, Place().height - kBandAboveFoot, Place().width, kBandHeight});
}

void Warmt::Hover() { picToolTip.Set_Visible(false); }

void Warmt::Close_Box() { Leave(); }

void Warmt::Leave() {
  module1_.forms.about.Unload();
  module1_.forms.warmt.Unload();
  module1_.forms.total.Unload();
  module1_.desk.Quit();
}

bool Leads_Out(const UserEvent& event) {
  constexpr int kExitEntry = 3;
  auto* const warmt = dynamic_cast<Warmt*>(&event.form);
  if (warmt == nullptr) return false;
  return event.action == UserAction::kCloseBox ||
         (event.action == UserAction::kClick && event.field == &warmt->lblMenu(kExitEntry));
}

}  // namespace norvane
