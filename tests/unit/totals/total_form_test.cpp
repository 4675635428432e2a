#include "totals/total_form.h"

#include <gtest/gtest.h>

#include <string>

#include "../support/test_program.h"

namespace norvane {
namespace {

class TheTotalScreen : public testing::Test {
 protected:
  TheTotalScreen() {
    program_.Start();
    program_.Set(warmt_.txtT(2), "13");
    program_.Click(warmt_.cmdAdd);
  }

  void Open() { ASSERT_EQ(program_.Click(warmt_.picTotal), std::nullopt); }
  Total& Screen() { return *program_.State().forms.total; }
  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(TheTotalScreen, FillsItselfOnceWhenItIsOpenedAndOnceAtEachActivation) {
  Open();
  int fills = 0;
  const Watch watch(Screen(), [&](const Field& field, Attribute attribute) {
    if (&field == &Screen().Label1 && attribute == Attribute::kCaption &&
        Screen().Label1.Caption().empty()) {
      ++fills;
    }
  });
  program_.Act(UserAction::kActivate, Screen());
  EXPECT_EQ(fills, 0);
  program_.Click(warmt_.cmdAdd);
  EXPECT_EQ(fills, 0);
  EXPECT_EQ(Screen().grdResult.Rows(), 2);
  program_.Act(UserAction::kActivate, Screen());
  EXPECT_EQ(fills, 1);
  EXPECT_EQ(Screen().grdResult.Rows(), 3);
}

TEST_F(TheTotalScreen, MakesTheLabelOfTheSumsAsWideAsItsText) {
  Open();
  EXPECT_EQ(Screen().Sums_Text.substr(0, 12), "t97   t89 = ");
  EXPECT_EQ(Screen().Label1.Caption(), Screen().Sums_Text);
  EXPECT_EQ(Screen().Label1.Place().width, 90.0 * static_cast<double>(Screen().Sums_Text.size()));
}

}  // namespace
}  // namespace norvane
