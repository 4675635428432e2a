// The curves of what stands in the fields go through what the screen shows, wherever it is stepped
// to.
#include "screen/inputs.h"

#include <gtest/gtest.h>

#include "../support/test_program.h"
#include "calc/dew_point.h"
#include "calc/sizes.h"
#include "catalogue/settings_form.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

class WhatTheScreenCalculates : public testing::TestWithParam<int> {
 protected:
  WhatTheScreenCalculates() { program_.Start(); }

  std::string Text(float value, const char* mask = "##0.0") {
    return Format(value, mask, program_.State().Locale());
  }
  std::string Label(int row) { return warmt_.Label4(row).Caption(); }
  void Expect_Same_Heat_Loss() {
    const auto input = Heat_Loss_On_Screen(program_.State(), warmt_);
    ASSERT_TRUE(input);
    const HeatLossResult result = Heat_Loss(*input);
    EXPECT_EQ(Text(result.Q_ins), Label(4));
    EXPECT_EQ(Text(result.Q_bare), Label(3));
    EXPECT_EQ(Text(result.T_surf), Label(2));
    EXPECT_EQ(Text(result.lambda_T, "0.000"), Label(0));
    EXPECT_EQ(Text(result.Alpha), Label(1));
    ASSERT_TRUE(result.savings);
    EXPECT_EQ(Text(result.savings->difference, "####0.00"), Label(6));
    EXPECT_FALSE(Condensation_On_Screen(program_.State(), warmt_));
  }
  void Expect_Same_Condensation() {
    const auto shown = Condensation_On_Screen(program_.State(), warmt_);
    ASSERT_TRUE(shown);
    const CondensResult result = Condensation(shown->input, shown->Alpha);
    EXPECT_EQ(Text(result.d_mm), warmt_.txtC(2).Text());
    EXPECT_EQ(Text(result.T_surf), Label(2));
    EXPECT_EQ(Text(result.Alpha), Label(1));
    EXPECT_FALSE(Heat_Loss_On_Screen(program_.State(), warmt_));
  }
  /// By the settings dialog, as a user does.
  void Set_Alpha(const std::string& alpha) {
    program_.platform.play_modal = [this, alpha](Form&) {
      Settings& settings = *program_.State().forms.settings;
      settings.Text3.Set_Text(alpha);
      EXPECT_EQ(program_.Click(settings.Command1), std::nullopt);
    };
    EXPECT_EQ(program_.Click(warmt_.cmdToolBar3(0)), std::nullopt);
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_P(WhatTheScreenCalculates, IsTheSameAtEachStopOfTheThickness) {
  program_.Click(warmt_.cmdToolBar1(GetParam()));
  program_.Set(warmt_.txtT(0), "95");
  for (const std::int16_t mm : Thick_Steps()) {
    program_.Up(warmt_.SpinButton1(2));
    EXPECT_EQ(warmt_.txtT(2).Text(), Format(mm, Locale{}));
    Expect_Same_Heat_Loss();
  }
  program_.Set(warmt_.txtT(2), "12.5");
  Expect_Same_Heat_Loss();
}

TEST_P(WhatTheScreenCalculates, IsTheSameAtEachHumidity) {
  program_.Click(warmt_.cmdToolBar1(GetParam()));
  program_.Click(warmt_.cmdToolBarC);
  program_.Set(warmt_.txtC(0), "-7.5");
  const std::vector<double> humidities = Known_Humidities(warmt_);
  ASSERT_EQ(humidities.size(), 14U);
  EXPECT_EQ(humidities.front(), 30);
  EXPECT_EQ(humidities.back(), 95);
  for (std::size_t i = 0; i < humidities.size(); ++i) {
    program_.Up(warmt_.SpinButton1(4));
    Expect_Same_Condensation();
  }
}

// The field that carries alpha on to the next calculation holds 9.4 by now.
TEST_P(WhatTheScreenCalculates, IsTheSameWithAnAlphaOfManyDecimals) {
  program_.Click(warmt_.cmdToolBar1(GetParam()));
  program_.Set(warmt_.txtT(2), "20");
  Set_Alpha("9.37");
  Expect_Same_Heat_Loss();
  program_.Click(warmt_.cmdToolBarC);
  Set_Alpha("9.37");
  Expect_Same_Condensation();
}

TEST_P(WhatTheScreenCalculates, IsNothingWhileTheResultsAreBlank) {
  program_.Click(warmt_.cmdToolBar1(GetParam()));
  program_.Click(warmt_.cmdToolBarC);
  program_.Set(warmt_.txtC(3), "4");
  EXPECT_FALSE(Condensation_On_Screen(program_.State(), warmt_));
  EXPECT_FALSE(Heat_Loss_On_Screen(program_.State(), warmt_));
}

TEST_P(WhatTheScreenCalculates, IsNothingOnceANumberHasEndedTheProgram) {
  program_.Click(warmt_.cmdToolBar1(GetParam()));
  program_.Set(warmt_.txtT(0), "40000");
  ASSERT_TRUE(program_.program.Failed());
  EXPECT_FALSE(Heat_Loss_On_Screen(program_.State(), warmt_));
}

INSTANTIATE_TEST_SUITE_P(OfEachPipe, WhatTheScreenCalculates,
                         testing::Values(kSteelPipe, kCopperTube, kMetricPipe));

}  // namespace
}  // namespace norvane
