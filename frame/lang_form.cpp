#include "frame/lang_form.h"

#include <algorithm>

#include "catalogue/address_form.h"
#include "data/runtime_error.h"
#include "frame/dialog_size.h"
#include "frame/language.h"
#include "frame/settings_file.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "totals/calculation_list.h"

namespace norvane {
namespace {

constexpr int kMarkOfTheDesign = 7;
constexpr int kFirstBelowTheEdge = 16;

}  // namespace

Lang::Lang(Module1& module1)
    : Form(module1.desk, "Lang", kDialogWidth, kDialogHeight), module1_(module1) {
  Label1.Set_Caption("Active Language:");
  OK.Set_Caption("OK");
  Label3(0).Set_Caption("3.0.99");
  for (CaptionField& name : Label2) {
    name.Set_Visible(name.Index() == 0);
    name.out_of_reach = name.Index() >= kFirstBelowTheEdge;
    name.On_Click = [this, index = name.Index()] { Click_Label2(index); };
  }
  for (CaptionField& version : Label3) version.Set_Visible(version.Index() == 0);
  for (PictureField& mark : imgCheck) mark.Set_Visible(mark.Index() == kMarkOfTheDesign);
  OK.On_Click = [this] { Hide(); };
  imgExit.On_Click = [this] { Hide(); };
}

void Lang::Load() {
  Set_Size(kDialogWidth, kDialogHeight);
  imgExit.Set_Place({Place().width - 280, 25, kDialogExitSize, kDialogExitSize});
  OK.Set_Place({Place().width - kDialogButtonWidth - 50, Place().height - 420, kDialogButtonWidth,
                kDialogButtonHeight});
}

void Lang::Close_Box() { Hide(); }

void Lang::Click_Label2(int Index) {
  for (PictureField& mark : imgCheck) mark.Set_Visible(false);
  imgCheck(Index).Set_Visible(true);
  module1_.desk.Let_Events_Run();
  Select_Language(static_cast<std::int16_t>(Index));
}

void Lang::Select_Language(std::int16_t TheLanNr) {
  for (int i = 1; i <= Label2.UBound(); ++i) Label2(i).Set_Visible(false);
  try {
    if (Has_Saved_Lines(module1_) || module1_.Calc_List.empty()) Clear_Saved_Lines();
    const auto& codes = module1_.languages.Lang_Code;
    const auto code = codes[static_cast<std::size_t>(TheLanNr)];
    const auto last = codes.begin() + module1_.forms.lang->Label2.UBound() + 1;
    const auto found = std::find(codes.begin(), last, code);
    if (found != last) module1_.Lang_Index = static_cast<std::int16_t>(found - codes.begin());
    Ini_Write(module1_, kSettingsFile, kInitSection, "Language", code.value_or(""));
    Apply_Language(module1_);
  } catch (const RuntimeError&) {
    // A language with a broken header is applied as far as it goes.
  }
}

void Lang::Clear_Saved_Lines() {
  const MessageAnswer answer = module1_.Message(
      kTitle, "Changing the language will clear saved data,\r\ndo you wish to continue",
      MessageIcon::kExclamation, MessageButtons::kYesNo);
  if (answer != MessageAnswer::kYes) {
    module1_.forms.lang.Unload();
    return;
  }
  // By its reference: what the user did meanwhile may have unloaded this one.
  module1_.forms.lang->Show();
  module1_.Calc_List.assign(1, "");
  if (module1_.forms.total.Loaded()) module1_.forms.total.Unload();
}

void Show_Lang_Dialog(Module1& module1) {
  Lang& lang = *module1.forms.lang;
  lang.Centre();
  // The heading of the other dialog is set here too, which loads that dialog.
  module1.forms.address->Label1.Set_Caption("Addresses");
  lang.Show();
}

}  // namespace norvane
