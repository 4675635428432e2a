#include <gtest/gtest.h>

#include "../support/test_program.h"
#include "../support/watch.h"

namespace norvane {
namespace {

/// The first calculation of each mode, on a screen whose fields are as a test sets them.
class FirstCalculation : public testing::Test {
 protected:
  FirstCalculation() {
    program_.Start();
    // No handler touches what a test writes.
    warmt_.Calc_Busy = true;
  }

  void Of_Heat_Loss() {
    warmt_.First_Warmt = true;
    warmt_.Bereken_Warmt();
  }
  void Of_Condensation() {
    warmt_.First_Condens = true;
    warmt_.Bereken_Condens();
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(FirstCalculation, FillsTheFieldsOfHeatLossThatAreZero) {
  for (TextField& field : warmt_.txtT) field.Set_Text("0");
  warmt_.Text2(3).Set_Caption("");
  warmt_.Text2(3).Set_Visible(false);
  warmt_.Label8(3).Set_Visible(false);
  Of_Heat_Loss();
  EXPECT_EQ(warmt_.txtT(0).Text(), "80");
  EXPECT_EQ(warmt_.Text2(0).Caption(), "176");
  EXPECT_EQ(warmt_.txtT(1).Text(), "15");
  EXPECT_EQ(warmt_.Text2(1).Caption(), "59");
  EXPECT_EQ(warmt_.txtT(2).Text(), "0");
  EXPECT_EQ(warmt_.txtT(3).Text(), "10");
  EXPECT_EQ(warmt_.Text2(3).Caption(), "1/8");
  EXPECT_TRUE(warmt_.Text2(3).Visible());
  EXPECT_TRUE(warmt_.Label8(3).Visible());
  EXPECT_FALSE(warmt_.First_Warmt);
}

TEST_F(FirstCalculation, KeepsTheFieldsOfHeatLossButTheThickness) {
  const char* const texts[] = {"60", "20", "13", "21"};
  for (int row = 0; row < 4; ++row) warmt_.txtT(row).Set_Text(texts[row]);
  warmt_.Text2(2).Set_Caption("1/2");
  warmt_.Text2(2).Set_Visible(true);
  warmt_.Label8(2).Set_Visible(true);
  warmt_.Text2(3).Set_Caption("1/2");
  Of_Heat_Loss();
  EXPECT_EQ(warmt_.txtT(0).Text(), "60");
  EXPECT_EQ(warmt_.txtT(1).Text(), "20");
  EXPECT_EQ(warmt_.txtT(2).Text(), "0");
  EXPECT_EQ(warmt_.Text2(2).Caption(), "");
  EXPECT_FALSE(warmt_.Text2(2).Visible());
  EXPECT_FALSE(warmt_.Label8(2).Visible());
  EXPECT_EQ(warmt_.txtT(3).Text(), "21");
  EXPECT_EQ(warmt_.Text2(3).Caption(), "1/2");
}

TEST_F(FirstCalculation, OfHeatLossTakesTheMarksOfCondensationOffItsFields) {
  warmt_.txtT(1).Set_Locked(true);
  warmt_.txtT(1).Set_BackColor(kGrey);
  warmt_.txtT(2).Set_BackColor(kGrey);
  warmt_.txtT(2).Set_Bold(true);
  warmt_.Label1(2).Set_Bold(true);
  Of_Heat_Loss();
  EXPECT_FALSE(warmt_.txtT(1).Locked());
  EXPECT_EQ(warmt_.txtT(1).BackColor(), kSystemWindow);
  EXPECT_EQ(warmt_.txtT(2).BackColor(), kSystemWindow);
  EXPECT_FALSE(warmt_.txtT(2).Font().bold);
  EXPECT_FALSE(warmt_.Label1(2).Font().bold);
}

TEST_F(FirstCalculation, FillsTheFieldsOfCondensationThatAreZeroOrEmpty) {
  for (TextField& field : warmt_.txtC) field.Set_Text("0");
  warmt_.txtC(4).Set_Text("");
  warmt_.Text2(3).Set_Caption("");
  warmt_.Text2(3).Set_Visible(false);
  warmt_.Label8(3).Set_Visible(false);
  warmt_.Idx_A1 = 0;
  warmt_.Idx_A4 = 0;
  Of_Condensation();
  EXPECT_EQ(warmt_.txtC(0).Text(), "10");
  EXPECT_EQ(warmt_.Text2(0).Caption(), "50");
  EXPECT_EQ(warmt_.txtC(1).Text(), "24");
  EXPECT_EQ(warmt_.Text2(1).Caption(), "75.2");
  EXPECT_EQ(warmt_.txtC(3).Text(), "10");
  EXPECT_EQ(warmt_.Text2(3).Caption(), "1/8");
  EXPECT_TRUE(warmt_.Text2(3).Visible());
  EXPECT_TRUE(warmt_.Label8(3).Visible());
  EXPECT_EQ(warmt_.txtC(4).Text(), "60");
  EXPECT_EQ(warmt_.Idx_A1, 17);
  EXPECT_EQ(warmt_.Idx_A4, 9);
  EXPECT_FALSE(warmt_.First_Condens);
}

TEST_F(FirstCalculation, KeepsTheFieldsOfCondensation) {
  // The dew point of 20 degrees and 0 percent isn't in the table, so nothing condenses.
  const char* const texts[] = {"5", "20", "9", "21", "0"};
  for (int row = 0; row < 5; ++row) warmt_.txtC(row).Set_Text(texts[row]);
  warmt_.Text2(3).Set_Caption("1/2");
  std::string thickness;
  const Watch watch(warmt_, [&](const Field& field, Attribute attribute) {
    if (&field == &warmt_.txtC(2) && attribute == Attribute::kText) {
      thickness += warmt_.txtC(2).Text() + ";";
    }
  });
  Of_Condensation();
  EXPECT_EQ(warmt_.txtC(0).Text(), "5");
  EXPECT_EQ(warmt_.txtC(1).Text(), "20");
  EXPECT_EQ(thickness, "0.0;");
  EXPECT_EQ(warmt_.txtC(3).Text(), "21");
  EXPECT_EQ(warmt_.Text2(3).Caption(), "1/2");
  EXPECT_EQ(warmt_.txtC(4).Text(), "0");
}

TEST_F(FirstCalculation, StartsFromATypicalThicknessOfCondensation) {
  warmt_.txtC(2).Set_Text("0");
  std::string thickness;
  const Watch watch(warmt_, [&](const Field& field, Attribute attribute) {
    if (&field == &warmt_.txtC(2) && attribute == Attribute::kText) {
      thickness += warmt_.txtC(2).Text() + ";";
    }
  });
  Of_Condensation();
  // Then the result for a medium of 10 degrees in air of 24 degrees and 60 percent.
  EXPECT_EQ(thickness, "0.7;1.7;");
}

TEST(TheLambdaButtons, AreThree) {
  TestProgram program;
  program.Start();
  program.State().Lambda = 0.05F;
  program.Main_Screen().Select_Lambda(3);
  EXPECT_EQ(program.State().Lambda, 0.05F);
}

}  // namespace
}  // namespace norvane
