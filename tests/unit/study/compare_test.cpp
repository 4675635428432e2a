#include "study/compare.h"

#include <gtest/gtest.h>

#include <cmath>

#include "objects.h"

namespace norvane {
namespace {

/// Ten metres for a year, gas at 1.20, a metre of 13 mm for 4.00 and of 25 mm for 9.00.
CompareRequest Request() {
  CompareRequest request;
  request.object = Steel_Pipe();
  request.object.length_m = 10;
  request.object.days = 365;
  request.choices = {{13, 4.0}, {25, 9.0}};
  request.energy = EnergyPrice{Fuel::kGas, 1.2};
  return request;
}

TEST(Compare, HasARowForEachChoiceWithTheNumbersOfTheScreen) {
  const auto rows = Compare(Request());
  ASSERT_EQ(rows.size(), 2U);
  Object object = Request().object;
  for (const Compared& row : rows) {
    object.thickness_mm = row.thickness_mm;
    EXPECT_EQ(Shown_Heat_Loss(std::get<HeatLossResult>(row.result)).values,
              Shown_Heat_Loss(std::get<HeatLossResult>(Heat_Loss_Of(object))).values);
  }
}

TEST(Compare, ValuesTheSavedGasAndThePayback) {
  const Compared row = Compare(Request()).front();
  const double gas = std::get<HeatLossResult>(row.result).savings->gas;
  EXPECT_DOUBLE_EQ(row.money_per_year.value(), gas * 1.2);
  EXPECT_DOUBLE_EQ(row.payback_years.value(), 40 / (gas * 1.2));
}

TEST(Compare, ValuesOilAndElectricityByTheirOwnAmounts) {
  CompareRequest request = Request();
  request.energy = EnergyPrice{Fuel::kOil, 2};
  Compared row = Compare(request).front();
  EXPECT_DOUBLE_EQ(*row.money_per_year, std::get<HeatLossResult>(row.result).savings->oil * 2);
  request.energy->fuel = Fuel::kElectricity;
  row = Compare(request).front();
  EXPECT_DOUBLE_EQ(
      *row.money_per_year,
      static_cast<double>(std::get<HeatLossResult>(row.result).savings->electricity) * 2);
}

// 12.7 W a metre of 8760 hours and 10 m are some 4000 MJ, or 115 m3 of gas.
TEST(Compare, AddsTheHeatThatStillFlowsAndAYearsShareOfTheInsulation) {
  const Compared row = Compare(Request()).front();
  const double watts = std::get<HeatLossResult>(row.result).Q_ins;
  const double gas = watts * 3.6 / 34880 * 24 * 365 * 10;
  EXPECT_NEAR(*row.yearly_cost, gas * 1.2 + 4.0 * 10 / 10, 1e-3);
}

TEST(Compare, MarksTheLeastYearlyCost) {
  CompareRequest request = Request();
  request.choices = {{13, 4.0}, {25, 9.0}, {50, 60.0}, {100, 300.0}};
  const auto rows = Compare(request);
  int marked = 0;
  for (const Compared& row : rows) {
    if (!row.economic) continue;
    ++marked;
    for (const Compared& other : rows) EXPECT_LE(*row.yearly_cost, *other.yearly_cost);
  }
  EXPECT_EQ(marked, 1);
}

TEST(Compare, MarksTheThinnerOfTwoThatCostTheSame) {
  CompareRequest request = Request();
  request.energy->per_unit = 0;
  request.choices = {{25, 9.0}, {13, 9.0}};
  const auto rows = Compare(request);
  EXPECT_FALSE(rows[0].economic);
  EXPECT_TRUE(rows[1].economic);
  EXPECT_FALSE(rows[0].payback_years.has_value());
}

TEST(Compare, HasNoMoneyWithoutPrices) {
  CompareRequest request = Request();
  request.energy.reset();
  for (const Compared& row : Compare(request)) {
    EXPECT_FALSE(row.money_per_year || row.payback_years || row.yearly_cost || row.economic);
  }
  request = Request();
  request.choices = {{13, {}}};
  const Compared row = Compare(request).front();
  EXPECT_TRUE(row.money_per_year.has_value());
  EXPECT_FALSE(row.payback_years || row.yearly_cost || row.economic);
}

TEST(Compare, SavesNothingWhereTheInsulatedOneLosesMore) {
  CompareRequest request = Request();
  request.object = Thin_Tube();
  request.choices = {{1, 4.0}};
  const Compared row = Compare(request).front();
  EXPECT_FALSE(std::get<HeatLossResult>(row.result).savings.has_value());
  EXPECT_FALSE(row.money_per_year || row.payback_years);
}

TEST(Compare, GivesAChoiceThatTheFieldWouldNotTakeItsReason) {
  CompareRequest request = Request();
  request.choices = {{101, 1.0}, {13, 4.0}};
  const auto rows = Compare(request);
  EXPECT_EQ(Words(std::get<Reason>(rows[0].result)), "thickness_mm is above 100");
  EXPECT_TRUE(rows[1].economic);
}

TEST(Compare, UsuallyTakesTheStepsOfTheArrowsAndGoesOnInTens) {
  std::vector<double> thicknesses;
  for (const Insulation& choice : Usual_Choices()) thicknesses.push_back(choice.thickness_mm);
  EXPECT_EQ(thicknesses,
            (std::vector<double>{6, 9, 13, 15, 20, 25, 30, 40, 50, 60, 70, 80, 90, 100}));
}

}  // namespace
}  // namespace norvane
