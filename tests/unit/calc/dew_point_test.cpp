#include "calc/dew_point.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../data/dew_figures.h"
#include "../data/error_of.h"

namespace norvane {
namespace {

constexpr int kFilledRows = 24;
constexpr int kFilledColumns = 16;

TEST(DewCellId, IsBuiltOfRowAndColumn) {
  EXPECT_EQ(Dew_Cell_Id(0, 1), 10001);
  EXPECT_EQ(Dew_Cell_Id(1, 3), 10103);
  EXPECT_EQ(Dew_Cell_Id(17, 9), 11709);
  EXPECT_EQ(Dew_Cell_Id(24, 16), 12416);
}

TEST(DewTable, HoldsTheFiguresAsSingles) {
  const Dew_Table table;
  ASSERT_EQ(Dew_Figures().size(), static_cast<std::size_t>(kFilledRows));
  for (int row = 1; row <= kFilledRows; ++row) {
    const DewRow& figures = Dew_Figures()[static_cast<std::size_t>(row - 1)];
    ASSERT_EQ(figures.texts.size(), static_cast<std::size_t>(kFilledColumns));
    EXPECT_EQ(table(row, 1), static_cast<float>(figures.T_amb)) << row;
    EXPECT_EQ(table(row, 2), Figure<float>(figures.texts[1])) << row;
    for (int column = 0; column < kHumidities; ++column) {
      EXPECT_EQ(table(row, column + 3),
                static_cast<float>(figures.below[static_cast<std::size_t>(column)]))
          << "row " << row << ", column " << column + 3;
    }
  }
}

TEST(DewTable, HoldsZeroInTheCellWithoutANumber) {
  const Dew_Table table;
  EXPECT_EQ(Dew_Figures()[0].texts[2], "-");
  EXPECT_EQ(table(1, 3), 0.0F);
}

TEST(DewTable, HoldsZeroBeyondTheFigures) {
  const Dew_Table table;
  for (int row = 1; row <= Dew_Table::kRows; ++row) {
    for (int column = 1; column <= Dew_Table::kColumns; ++column) {
      if (row <= kFilledRows && column <= kFilledColumns) continue;
      EXPECT_EQ(table(row, column), 0.0F) << row << ", " << column;
    }
  }
}

TEST(DewTable, HasNothingOutsideItself) {
  const Dew_Table table;
  EXPECT_EQ(table(Dew_Table::kRows, Dew_Table::kColumns), 0.0F);
  EXPECT_EQ(Error_Of([&] { table(0, 1); }), 9);
  EXPECT_EQ(Error_Of([&] { table(Dew_Table::kRows + 1, 1); }), 9);
  EXPECT_EQ(Error_Of([&] { table(1, 0); }), 9);
  EXPECT_EQ(Error_Of([&] { table(1, Dew_Table::kColumns + 1); }), 9);
}

TEST(DewTable, KeepsItsUnevenSteps) {
  const Dew_Table table;
  EXPECT_EQ(table(18, 4), 16.6F);
  EXPECT_EQ(table(19, 4), 16.6F);
}

TEST(DewPoint, LiesBelowTheAirByTheCellOfTheTable) {
  EXPECT_EQ(Trt_DauwPunt(24, 60), 15.8F);
  EXPECT_EQ(Trt_DauwPunt(-20, 95), -20.5F);
  EXPECT_EQ(Trt_DauwPunt(50, 30), 27.7F);
}

TEST(DewPoint, IsThatOfEveryCell) {
  for (const DewRow& row : Dew_Figures()) {
    for (int column = 0; column < kHumidities; ++column) {
      const float below = static_cast<float>(row.below[static_cast<std::size_t>(column)]);
      const float humidity = static_cast<float>(30 + 5 * column);
      EXPECT_EQ(Trt_DauwPunt(static_cast<float>(row.T_amb), humidity),
                static_cast<float>(row.T_amb - double{below}))
          << row.T_amb << " degrees, " << humidity << "%";
    }
  }
}

TEST(DewPoint, FindsAHumidityByTheSevenDigitsOfItsText) {
  // The singles beside 60 read 60.000004 and 59.999996, which are 60.00000 in seven digits.
  EXPECT_EQ(Trt_DauwPunt(24, std::nextafter(60.0F, 100.0F)), 15.8F);
  EXPECT_EQ(Trt_DauwPunt(24, std::nextafter(60.0F, 0.0F)), 15.8F);
}

TEST(DewPoint, IsTheAirItselfAtTheCellWithoutANumber) { EXPECT_EQ(Trt_DauwPunt(-20, 30), -20.0F); }

TEST(DewPoint, IsTheAirItselfForATemperatureOutsideTheTable) {
  for (const float T_amb : {1.0F, 25.0F, 24.0001F, -21.0F, 51.0F, 110.0F, 1e30F}) {
    for (const float humidity : {30.0F, 60.0F, 95.0F, 97.0F}) {
      EXPECT_EQ(Trt_DauwPunt(T_amb, humidity), T_amb) << humidity;
    }
  }
}

TEST(DewPoint, IsTheAirItselfForAHumidityOutsideTheTable) {
  for (const float humidity : {97.0F, 60.5F, 60.0001F, 25.0F, 100.0F, 0.0F, -60.0F, 1e30F}) {
    EXPECT_EQ(Trt_DauwPunt(24, humidity), 24.0F) << humidity;
  }
}

}  // namespace
}  // namespace norvane
