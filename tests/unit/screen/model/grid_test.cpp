#include "screen/model/grid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../data/error_of.h"
#include "../../support/watch.h"
#include "logged_form.h"

namespace norvane {
namespace {

class AGrid : public testing::Test {
 protected:
  AGrid() {
    grid_.Start({"", "first", "second"}, {300, 2000, 2000});
    grid_.Add_Item("\ta\tb");
    grid_.Add_Item("\tc");
  }

  LoggedDesk desk_;
  Form form_{desk_.desk, "Form", 1000, 1000};
  Grid grid_{form_, "grid"};
};

TEST_F(AGrid, HasARowForEachItemBelowItsCaptions) {
  EXPECT_EQ(grid_.Rows(), 3);
  EXPECT_EQ(grid_.Cols(), 3);
  EXPECT_EQ(grid_.Cell(0, 1), "first");
  EXPECT_EQ(grid_.Cell(1, 0), "");
  EXPECT_EQ(grid_.Cell(1, 2), "b");
  EXPECT_EQ(grid_.ColWidth(0), 300);
  EXPECT_EQ(grid_.ColWidth(2), 2000);
}

TEST_F(AGrid, ShowsAMissingCellAsEmpty) { EXPECT_EQ(grid_.Cell(2, 2), ""); }

TEST_F(AGrid, ShowsNoCellBeyondItsColumns) {
  grid_.Add_Item("1\t2\t3\t4");
  EXPECT_EQ(grid_.Cell(3, 2), "3");
  EXPECT_EQ(Error_Of([this] { grid_.Cell(3, 3); }), 9);
}

TEST_F(AGrid, HasNothingOutsideItself) {
  EXPECT_EQ(Error_Of([this] { grid_.Cell(-1, 0); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.Cell(3, 0); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.Cell(0, -1); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.Cell(0, 3); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.ColWidth(3); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.ColWidth(-1); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.Set_Row(3); }), 9);
  EXPECT_EQ(Error_Of([this] { grid_.Set_Row(-1); }), 9);
}

TEST_F(AGrid, TakesASelectionAsItWasDragged) {
  int released = 0;
  grid_.On_Mouse_Up = [&] { ++released; };
  grid_.Pick_Rows(2, 1);
  EXPECT_EQ(grid_.Row(), 2);
  EXPECT_EQ(grid_.RowSel(), 1);
  EXPECT_EQ(released, 1);
  grid_.Set_Row(2);
  EXPECT_EQ(grid_.RowSel(), 2);
  EXPECT_EQ(released, 1);
}

TEST_F(AGrid, TakesASelectionThatNobodyWaitsFor) {
  grid_.Pick_Rows(1, 2);
  EXPECT_EQ(grid_.Row(), 1);
  EXPECT_EQ(grid_.RowSel(), 2);
}

TEST_F(AGrid, TellsOfEachChange) {
  std::vector<Attribute> told;
  const Watch watch(form_, [&](const Field&, Attribute attribute) { told.push_back(attribute); });
  grid_.Add_Item("\td");
  grid_.Set_Row(2);
  grid_.Pick_Rows(1, 1);
  grid_.Start({""}, {300});
  using enum Attribute;
  EXPECT_EQ(told, (std::vector<Attribute>{kCells, kRow, kRow, kCells}));
}

TEST_F(AGrid, BeginsAnewWithoutASelection) {
  grid_.Set_Row(2);
  grid_.Start({"x"}, {300});
  EXPECT_EQ(grid_.Rows(), 1);
  EXPECT_EQ(grid_.Cols(), 1);
  EXPECT_EQ(grid_.Row(), 0);
  EXPECT_EQ(grid_.RowSel(), 0);
}

}  // namespace
}  // namespace norvane
