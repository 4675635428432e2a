#include "screen/answer.h"

#include <gtest/gtest.h>

#include "../support/test_program.h"
#include "calc/conversions.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

class TheAnswer : public testing::TestWithParam<char> {
 protected:
  TheAnswer() : program_(GetParam()) { program_.Start(); }

  /// As this locale writes it.
  static std::string Number(std::string text) {
    if (const auto point = text.find('.'); point != text.npos) text[point] = GetParam();
    return text;
  }
  void Condensation_With(const std::string& medium, const std::string& diameter) {
    program_.Click(warmt_.cmdToolBarC);
    program_.Set(warmt_.txtC(0), medium);
    program_.Set(warmt_.txtC(3), diameter);
  }
  std::optional<Answer> Shown() { return Answer_On_Screen(program_.State(), warmt_); }
  std::optional<DewPointOnScreen> Dew_Point() {
    return Dew_Point_On_Screen(program_.State(), warmt_);
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_P(TheAnswer, IsTheHeatFlowAndWhatIsSaved) {
  program_.Set(warmt_.txtT(3), "21");
  program_.Set(warmt_.txtT(2), "13");
  const auto answer = Shown();
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->value, Number("17.0"));
  EXPECT_EQ(answer->unit, "t75");
  EXPECT_EQ(answer->saving, "68%");
  EXPECT_EQ(answer->next_size, std::nullopt);
  EXPECT_FALSE(Dew_Point());
}

// 1 mm on a tube of 6 mm has a larger surface that loses more than it holds back.
TEST_P(TheAnswer, KeepsNoPercentageOfBeforeWhereNothingIsSaved) {
  program_.Click(warmt_.cmdToolBar1(kCopperTube));
  program_.Set(warmt_.txtT(2), "30");
  ASSERT_TRUE(Shown()->saving);
  program_.Set(warmt_.txtT(2), "1");
  EXPECT_EQ(Shown()->saving, std::nullopt);
}

// Known thicknesses. On a comma locale 9,9 must not be read as 9, which would do.
TEST_P(TheAnswer, IsTheThicknessAndTheNextOneThatIsSold) {
  Condensation_With("10", "10");
  EXPECT_EQ(Shown()->value, Number("1.7"));
  EXPECT_EQ(Shown()->unit, "t71");
  EXPECT_EQ(Shown()->next_size, 6);
  EXPECT_EQ(Shown()->saving, std::nullopt);
  Condensation_With("-20", "60");
  EXPECT_EQ(Shown()->value, Number("9.9"));
  EXPECT_EQ(Shown()->next_size, 13);
}

TEST_P(TheAnswer, HasNoNextSizeWhereNothingIsNeededOrNothingIsSold) {
  Condensation_With("20", "60");
  EXPECT_EQ(Shown()->value, Number("0.0"));
  EXPECT_EQ(Shown()->next_size, std::nullopt);
  Condensation_With("-50", "273");
  for (int i = 0; i < 7; ++i) program_.Up(warmt_.SpinButton1(4));
  EXPECT_EQ(warmt_.txtC(4).Text(), "95");
  EXPECT_EQ(Shown()->next_size, std::nullopt);
}

TEST_P(TheAnswer, IsNothingWhileTheResultsAreBlank) {
  Condensation_With("10", "4");
  EXPECT_FALSE(Shown());
  EXPECT_FALSE(Dew_Point());
}

TEST_P(TheAnswer, ComesWithTheDewPointAndTheSurfaceAboveIt) {
  Condensation_With("10", "10");
  ASSERT_TRUE(Dew_Point());
  EXPECT_FLOAT_EQ(Dew_Point()->T_dew, 15.8F);
  EXPECT_EQ(Dew_Point()->surface_above, 0.0F);
  EXPECT_EQ(Dew_Point()->T_amb, 24);
  Condensation_With("20", "10");
  EXPECT_FLOAT_EQ(*Dew_Point()->surface_above, 4.2F) << "20.0 without insulation";
}

// What a sheet shows is nearly the temperature of the air.
TEST_P(TheAnswer, OfASheetTellsNoDifference) {
  program_.Click(warmt_.cmdToolBar1(kSheet));
  program_.Click(warmt_.cmdToolBarC);
  ASSERT_TRUE(Dew_Point());
  EXPECT_EQ(Dew_Point()->surface_above, std::nullopt);
  EXPECT_EQ(Dew_Point()->T_surf, Dew_Point()->T_dew);
}

TEST_P(TheAnswer, KnowsNoDewPointThatTheTableLacks) {
  program_.Click(warmt_.cmdToolBarC);
  while (warmt_.txtC(1).Text() != "-20") program_.Down(warmt_.SpinButton1(1));
  while (warmt_.txtC(4).Text() != "30") program_.Down(warmt_.SpinButton1(4));
  EXPECT_TRUE(Shown());
  EXPECT_FALSE(Dew_Point());
}

INSTANTIATE_TEST_SUITE_P(OfEachLocale, TheAnswer, testing::Values('.', ','));

}  // namespace
}  // namespace norvane
