#include "spreadsheet/row_gatherer.h"

#include <gtest/gtest.h>

#include <vector>

namespace norvane {
namespace {

TEST(ABlockOfRows, TakesTheNextRowOfTheSameColumns) {
  RowGatherer rows;
  EXPECT_TRUE(rows.Takes({3, 7, 5, 7}));
  rows.Add({3, 7, 5, 7}, {1.0, 2.0, 3.0});
  EXPECT_TRUE(rows.Takes({3, 8, 5, 8}));
  EXPECT_FALSE(rows.Takes({3, 7, 5, 7})) << "the same row";
  EXPECT_FALSE(rows.Takes({3, 9, 5, 9})) << "with a gap";
  EXPECT_FALSE(rows.Takes({3, 6, 5, 6})) << "above";
  EXPECT_FALSE(rows.Takes({2, 8, 4, 8})) << "further left";
  EXPECT_FALSE(rows.Takes({3, 8, 4, 8})) << "narrower";
  EXPECT_FALSE(rows.Takes({3, 8, 6, 8})) << "wider";
}

TEST(ABlockOfRows, IsHandedOverWhole) {
  RowGatherer rows;
  rows.Add({3, 7, 4, 7}, {1.0, 2.0});
  rows.Add({3, 8, 4, 8}, {3.0, 4.0});
  const CellBlock block = rows.Take();
  EXPECT_EQ(block.first_column, 3);
  EXPECT_EQ(block.first_row, 7);
  EXPECT_EQ(block.rows, (std::vector<std::vector<CellValue>>{{1.0, 2.0}, {3.0, 4.0}}));
  EXPECT_TRUE(rows.Empty());
  EXPECT_TRUE(rows.Takes({0, 0, 0, 0}));
}

}  // namespace
}  // namespace norvane
