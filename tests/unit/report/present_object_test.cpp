#include "report/present_object.h"

#include <gtest/gtest.h>

#include <random>

#include "../support/test_program.h"
#include "calc/shown_number.h"
#include "calc/sizes.h"
#include "catalogue/settings_form.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"
#include "study/result.h"

namespace norvane {
namespace {

std::string Text_Of(std::int64_t shown, int decimals, char sign) {
  char text[kLongestShown];
  return {text, Write_Shown(text, shown, decimals, sign)};
}

/// What the screen shows in `Label4`, in the order of `kHeatLossColumns`.
std::vector<std::string> On_Screen(TestProgram& test) {
  std::vector<std::string> texts;
  for (CaptionField& label : test.Main_Screen().Label4) {
    std::string text = label.Caption();
    if (text.ends_with('%')) text.pop_back();
    texts.push_back(text);
  }
  return texts;
}

std::vector<std::string> Of_Object(TestProgram& test) {
  const auto object = Present_Object(test.State(), test.Main_Screen());
  const auto result = Heat_Loss_Of(object.value());
  const ShownHeatLoss shown = Shown_Heat_Loss(std::get<HeatLossResult>(result));
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < shown.values.size(); ++i) {
    texts.push_back(Text_Of(shown.values[i], kHeatLossColumns[i].decimals,
                            test.State().Locale().decimal_separator));
  }
  return shown.saves ? texts : std::vector<std::string>(texts.begin(), texts.begin() + 5);
}

void Expect_Agreement(TestProgram& test) {
  std::vector<std::string> screen = On_Screen(test);
  const std::vector<std::string> own = Of_Object(test);
  screen.resize(own.size());
  EXPECT_EQ(own, screen);
}

class PresentObject : public testing::TestWithParam<char> {};

TEST_P(PresentObject, HasTheHeatLossOfTheScreen) {
  TestProgram test(GetParam());
  test.Start();
  std::mt19937 random(17);
  const auto from = [&](int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
  };
  Warmt& warmt = test.Main_Screen();
  for (int i = 0; i < 300; ++i) {
    const int kind = from(0, 3);
    test.Click(warmt.cmdToolBar1(kind));
    // As a user types it, whatever the locale is.
    const auto one_decimal = [&](int tenths) {
      return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
    };
    test.Set(warmt.txtT(0), std::to_string(from(-50, 115)));
    test.Set(warmt.txtT(1), std::to_string(from(-60, 110)));
    if (kind != kSheet) test.Set(warmt.txtT(3), one_decimal(from(70, 1000)));
    test.Set(warmt.txtmtrs, std::to_string(from(1, 500)));
    test.State().Lambda =
        To_Single(static_cast<double>(To_Single(from(15, 60) / 1000.0)) - kLambdaDifference);
    test.Set(warmt.txtT(2), one_decimal(from(0, 1000)));
    Expect_Agreement(test);
    if (HasFailure()) return;
  }
}

TEST_P(PresentObject, OfCondensationHasItsFieldsAndTheThicknessThatIsShown) {
  TestProgram test(GetParam());
  test.Start();
  Warmt& warmt = test.Main_Screen();
  test.Click(warmt.cmdToolBarC);
  test.Set(warmt.txtC(0), "6");
  const auto object = Present_Object(test.State(), warmt);
  EXPECT_EQ(object->medium_C, 6);
  EXPECT_EQ(object->humidity_percent, Val(warmt.txtC(4).Text()));
  EXPECT_GT(object->thickness_mm, 0);
  EXPECT_EQ(Format(object->thickness_mm, "##0.0", test.State().Locale()), warmt.txtC(2).Text());
}

INSTANTIATE_TEST_SUITE_P(Locales, PresentObject, testing::Values('.', ','),
                         [](const auto& test) { return test.param == ',' ? "Comma" : "Point"; });

}  // namespace
}  // namespace norvane
