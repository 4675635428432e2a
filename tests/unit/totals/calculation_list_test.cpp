#include "totals/calculation_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "../data/error_of.h"
#include "../support/test_program.h"

namespace norvane {
namespace {

constexpr int kMostLines = 32'766;

class TheListOfCalculations : public testing::Test {
 protected:
  TheListOfCalculations() { program_.Start(); }

  std::vector<std::string>& List() { return program_.State().Calc_List; }
  int Lines() { return static_cast<int>(List().size()) - 2; }

  void Add() { Fill_Calculation_list(program_.State(), program_.Main_Screen().Combo1.Text()); }

  /// Adds copies of a line, faster than the screen does.
  void Add_Copies(int lines) {
    Add();
    const std::string line = List()[1];
    List().insert(List().end() - 1, static_cast<std::size_t>(lines - 1), line);
  }

  TestProgram program_;
};

TEST_F(TheListOfCalculations, HasAHeaderAndASpareElementAtTheStart) {
  ASSERT_EQ(List().size(), 2U);
  EXPECT_EQ(List()[0],
            "~t81~t82~t99~t98~t18~t19~t20~t21~t36~t24~t25~t26~t27~t28~t29 %~t29 Wm~t48~t49~t51");
  EXPECT_EQ(List()[1], "");
}

TEST_F(TheListOfCalculations, TakesTheSameLineAsOftenAsItIsAdded) {
  Add();
  Add();
  ASSERT_EQ(List().size(), 4U);
  EXPECT_EQ(List()[1], List()[2]);
  EXPECT_EQ(List()[3], "");
  EXPECT_EQ(std::count(List()[1].begin(), List()[1].end(), '\t'), 19);
}

TEST_F(TheListOfCalculations, IsMadeAnewWhenItDoesNotExist) {
  List().clear();
  Add();
  ASSERT_EQ(List().size(), 3U);
  EXPECT_EQ(List()[0].substr(0, 8), "~t81~t82");
  EXPECT_EQ(List()[1].front(), '\t');
}

TEST_F(TheListOfCalculations, IsATextOfLinesWithTabsBetweenTheCells) {
  EXPECT_EQ(Saved_Lines_As_Text(program_.State()), "");
  List() = {"~a~b", "\t1\t2", "\t3\t4", ""};
  EXPECT_EQ(Saved_Lines_As_Text(program_.State()), "\ta\tb\n\t1\t2\n\t3\t4\n");
}

TEST_F(TheListOfCalculations, IsFullWith32766Lines) {
  Add_Copies(kMostLines - 1);
  Add();
  EXPECT_EQ(Lines(), kMostLines);
  EXPECT_EQ(List()[kMostLines], List()[1]);
  EXPECT_EQ(Error_Of([this] { Add(); }), 6);
  EXPECT_EQ(Lines(), kMostLines);
  EXPECT_EQ(List().back(), "");
}

TEST_F(TheListOfCalculations, EndsTheProgramWithAnOverflowWhenItIsFull) {
  Add_Copies(kMostLines);
  EXPECT_EQ(program_.Click(program_.Main_Screen().cmdAdd), std::nullopt);
  EXPECT_EQ(program_.Printed(), "runtime error 6: Overflow\n");
  EXPECT_TRUE(program_.program.Failed());
}

TEST_F(TheListOfCalculations, RefusesAProductThatDoesNotExist) {
  EXPECT_EQ(Error_Of([this] { Fill_Calculation_list(program_.State(), "no product"); }), 5);
}

}  // namespace
}  // namespace norvane
