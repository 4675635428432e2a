#include "frame/about_form.h"

#include <gtest/gtest.h>

#include <string>

#include "../support/test_program.h"
#include "catalogue/address_form.h"
#include "frame/lang_form.h"

namespace norvane {
namespace {

/// The splash, while the form of the parameter carries a tag.
class TheSplash : public testing::TestWithParam<std::string> {
 protected:
  TheSplash() { program_.program.Main(); }

  Form& Tagged() {
    Forms& forms = program_.State().forms;
    if (GetParam() == "About") return *forms.about;
    if (GetParam() == "Address") return *forms.address;
    return *forms.lang;
  }
  About& Splash() { return *program_.State().forms.about; }
  void Tick() { program_.program.Tick(Splash().Timer1); }

  TestProgram program_;
};

TEST_P(TheSplash, StopsItsClockForGoodWhereAFormForbidsTimers) {
  Tick();
  Tagged().Tag = "no timers";
  Tick();
  EXPECT_EQ(Splash().Tick_Count, 1);
  EXPECT_FALSE(Splash().Timer1.Enabled());
  EXPECT_TRUE(Splash().Shown());
  EXPECT_FALSE(program_.Main_Screen().Shown());
}

TEST_P(TheSplash, GoesOnUnderAnyOtherTag) {
  Tagged().Tag = "No timers";
  for (int tick = 1; tick <= 3; ++tick) Tick();
  EXPECT_EQ(Splash().Tick_Count, 3);
  EXPECT_FALSE(Splash().Shown());
  EXPECT_TRUE(program_.Main_Screen().Shown());
}

INSTANTIATE_TEST_SUITE_P(OfEachForm, TheSplash, testing::Values("About", "Address", "Lang"));

}  // namespace
}  // namespace norvane
