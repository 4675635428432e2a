#include "screen/input_notes.h"

#include <gtest/gtest.h>

#include "../support/test_program.h"

namespace norvane {
namespace {

constexpr Limits kMediumLimits{-50, 115};
constexpr Limits kDiameterLimits{6, 915};

TEST(WhatCameOfAText, IsTakenAsItIsOrWithoutItsLeadingZeros) {
  EXPECT_EQ(What_Came_Of("80", "80", kMediumLimits), GivenText::kTaken);
  EXPECT_EQ(What_Came_Of("05", "5", kMediumLimits), GivenText::kTaken);
  EXPECT_EQ(What_Came_Of("", "0", kMediumLimits), GivenText::kTaken);
  EXPECT_EQ(What_Came_Of("00", "0", kMediumLimits), GivenText::kTaken);
  EXPECT_EQ(What_Came_Of("-12.5", "-12.5", kMediumLimits), GivenText::kTaken);
}

TEST(WhatCameOfAText, IsCutToALimit) {
  EXPECT_EQ(What_Came_Of("125", "115", kMediumLimits), GivenText::kCut);
  EXPECT_EQ(What_Came_Of("-51", "-50", kMediumLimits), GivenText::kCut);
  EXPECT_EQ(What_Came_Of("916", "915", kDiameterLimits), GivenText::kCut);
  EXPECT_EQ(What_Came_Of("115", "115", kMediumLimits), GivenText::kTaken);
}

TEST(WhatCameOfAText, IsLostInPartOrAsAWhole) {
  EXPECT_EQ(What_Came_Of("-", "0", kMediumLimits), GivenText::kLost);
  EXPECT_EQ(What_Came_Of("1.", "1", kMediumLimits), GivenText::kLost);
  EXPECT_EQ(What_Came_Of("12,5", "12", kMediumLimits), GivenText::kLost);
  EXPECT_EQ(What_Came_Of("x", "0", kMediumLimits), GivenText::kLost);
  EXPECT_EQ(What_Came_Of("2", "10", kDiameterLimits), GivenText::kLost) << "10 is no limit";
}

TEST(DegreesFahrenheit, AreStaleFromAChangeOfTheModeToTheNextChangeOfTheField) {
  TestProgram program;
  program.Start();
  Warmt& warmt = program.Main_Screen();
  EXPECT_FALSE(Is_Fahrenheit_Stale(program.State(), warmt, 0));
  program.Click(warmt.cmdToolBarC);
  EXPECT_TRUE(Is_Fahrenheit_Stale(program.State(), warmt, 0)) << "176 of 80, beside 10";
  EXPECT_TRUE(Is_Fahrenheit_Stale(program.State(), warmt, 1)) << "59 of 15, beside 24";
  program.Set(warmt.txtC(0), "12");
  program.Up(warmt.SpinButton1(1));
  EXPECT_FALSE(Is_Fahrenheit_Stale(program.State(), warmt, 0));
  EXPECT_FALSE(Is_Fahrenheit_Stale(program.State(), warmt, 1));
}

}  // namespace
}  // namespace norvane
