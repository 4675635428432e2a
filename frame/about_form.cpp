#include "frame/about_form.h"

#include "catalogue/address_form.h"
#include "catalogue/addresses.h"
#include "frame/dialog_size.h"
#include "frame/lang_form.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr int kTicksOfTheSplash = 3;

}  // namespace

About::About(Module1& module1)
    : Form(module1.desk, "About", kDialogWidth, kDialogHeight), module1_(module1) {
  has_close_box = false;
  Label1.Set_Font({kDefaultFontName, 16, true, std::nullopt});
  Timer1.On_Tick = [this] { Tick(); };
}

void About::Load() {
  Load_Addresses(module1_);
  Set_Size(kDialogWidth, kDialogHeight);
}

void About::Tick() {
  // Reading a tag loads its form: the first tick brings the dialogs to life.
  bool no_timers = false;
  for (Form* form :
       {&module1_.forms.about.Get(), &module1_.forms.address.Get(), &module1_.forms.lang.Get()}) {
    no_timers = no_timers || form->Tag == kNoTimers;
  }
  if (no_timers) {
    Timer1.Set_Enabled(false);
    return;
  }
  if (++Tick_Count < kTicksOfTheSplash) return;
  module1_.forms.warmt->Show();
  Hide();
  Timer1.Set_Enabled(false);
}

void Show_Splash(Module1& module1) {
  About& about = *module1.forms.about;
  about.Centre();
  about.Label1.Set_Caption(Title_And_Version(kRelease));
  about.Show();
}

}  // namespace norvane
