#include "desktop/views.h"

#include "catalogue/address_form.h"
#include "catalogue/settings_form.h"
#include "desktop/address_view.h"
#include "desktop/language_view.h"
#include "desktop/main_view.h"
#include "desktop/settings_view.h"
#include "desktop/splash_view.h"
#include "desktop/total_view.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "screen/warmt.h"
#include "totals/total_form.h"

namespace norvane {

FormView* Make_View(Desktop& desktop, Form& form) {
  if (auto* warmt = dynamic_cast<Warmt*>(&form)) return new MainView(desktop, *warmt);
  if (auto* settings = dynamic_cast<Settings*>(&form)) return new SettingsView(desktop, *settings);
  if (auto* lang = dynamic_cast<Lang*>(&form)) return new LanguageView(desktop, *lang);
  if (auto* address = dynamic_cast<Address*>(&form)) return new AddressView(desktop, *address);
  if (auto* total = dynamic_cast<Total*>(&form)) return new TotalView(desktop, *total);
  return new SplashView(desktop, dynamic_cast<About&>(form));
}

}  // namespace norvane
