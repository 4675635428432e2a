#include "report/comparison_table.h"

#include <gtest/gtest.h>

#include "../study/objects.h"
#include "../support/test_program.h"
#include "frame/shared_state.h"
#include "numbered_texts.h"
#include "report/comparison_export.h"
#include "report/present_object.h"

namespace norvane {
namespace {

using Table = ComparisonTable;

Table Compare_With(const Prices& prices, const Object& object, char sign = '.') {
  return Comparison_Of(object, prices, Number_Of, {sign});
}

std::string At(const Table& table, double thickness, Table::Column column) {
  for (const Table::Row& row : table.rows) {
    if (row.thickness_mm == thickness) return row.cells[column].text;
  }
  return "no such row";
}

TEST(AComparison, ShowsWhatTheScreenShowsForEachThickness) {
  for (const char sign : {'.', ','}) {
    TestProgram test(sign);
    test.Start();
    Warmt& warmt = test.Main_Screen();
    test.Set(warmt.txtT(2), "13");
    const Table table = Comparison_Of(Present_Object(test.State(), warmt).value(), {}, Number_Of,
                                      test.State().Locale());
    EXPECT_EQ(table.rows.size(), 14U);
    for (const Table::Row& row : table.rows) {
      test.Set(warmt.txtT(2), row.cells[Table::kThickness].text);
      EXPECT_EQ(row.cells[Table::kSurface].text, warmt.Label4(2).Caption());
      EXPECT_EQ(row.cells[Table::kHeatFlow].text, warmt.Label4(4).Caption());
      EXPECT_EQ(row.cells[Table::kSavingPercent].text + "%", warmt.Label4(5).Caption());
      EXPECT_EQ(row.cells[Table::kGas].text, warmt.Label4(7).Caption());
      EXPECT_EQ(row.cells[Table::kOil].text, warmt.Label4(8).Caption());
      EXPECT_EQ(row.cells[Table::kElectricity].text, warmt.Label4(9).Caption());
    }
  }
}

TEST(AComparison, MarksThePresentThicknessAndAddsOneThatIsNotUsual) {
  Object object = Steel_Pipe();
  object.thickness_mm = 17.5;
  const Table table = Compare_With({}, object, ',');
  ASSERT_EQ(table.rows.size(), 15U);
  for (const Table::Row& row : table.rows) EXPECT_EQ(row.present, row.thickness_mm == 17.5);
  EXPECT_EQ(table.rows[4].cells[Table::kThickness].text, "17,5");
  EXPECT_EQ(At(table, 17.5, Table::kMarks), "t132");
  EXPECT_EQ(Compare_With({}, Steel_Pipe()).rows.size(), 14U);
}

TEST(AComparison, HasMoneyWhereItHasPrices) {
  Prices prices;
  prices.energy[0] = 1.2;
  prices.of_pipe = {{13, 4}, {50, 400}};
  prices.of_sheet = {{20, 9}};
  Object object = Steel_Pipe();
  object.days = 365;
  object.length_m = 10;
  const Table table = Compare_With(prices, object);
  const double gas = std::get<HeatLossResult>(Heat_Loss_Of(object)).savings->gas;
  EXPECT_EQ(At(table, 13, Table::kGas), Format(gas, "0.00", {}));
  EXPECT_EQ(At(table, 13, Table::kMoney), Format(gas * 1.2, "0.00", {}));
  EXPECT_EQ(At(table, 13, Table::kPayback), "0.1");
  EXPECT_EQ(At(table, 13, Table::kCost), "4");
  EXPECT_EQ(At(table, 13, Table::kMarks), "t132, t131");
  EXPECT_EQ(At(table, 20, Table::kCost), "");
  EXPECT_EQ(At(table, 20, Table::kYearlyCost), "");
  EXPECT_NE(At(table, 20, Table::kMoney), "");
  EXPECT_EQ(At(table, 50, Table::kMarks), "");
}

TEST(AComparison, SaysThatNothingIsSaved) {
  Object object = Thin_Tube();
  const Table table = Compare_With({}, object);
  EXPECT_EQ(At(table, 1, Table::kSavingPercent), Number_Of(TextId::kNoSaving));
  EXPECT_EQ(At(table, 1, Table::kGas), "");
  EXPECT_NE(At(table, 1, Table::kHeatFlow), "");
}

TEST(AComparison, OfWhatCannotBeCalculatedHasThicknessesAlone) {
  Object object = Steel_Pipe();
  object.diameter_mm = 5;
  for (const Table::Row& row : Compare_With({}, object).rows) {
    EXPECT_NE(row.cells[Table::kThickness].text, "");
    EXPECT_EQ(row.cells[Table::kHeatFlow].text + row.cells[Table::kSavingPercent].text, "");
  }
}

TEST(AComparison, IsNumbersTooThatAreThoseOfTheTexts) {
  Prices prices;
  prices.energy[0] = 1.234567;
  for (const Table::Row& row : Compare_With(prices, Steel_Pipe()).rows) {
    for (const Table::Cell& cell : row.cells) {
      EXPECT_EQ(Val(cell.text), cell.number.value_or(Val(cell.text)));
    }
  }
}

TEST(AComparison, IsCopiedWithItsHeadings) {
  const std::string text = As_Text(Compare_With({}, Steel_Pipe(), ','));
  EXPECT_TRUE(
      text.starts_with("t20 (t71)\tt26 (t69)\tt28 (t75)\tt29 (%)\tt89\tt90\tt91\t"
                       "t133 (1 m)\tt134\tt135\tt136\t\n6\t"))
      << text;
  EXPECT_NE(text.find("\n13\t24,2\t17,0\t68\t2,72\t2,16\t26,34\t"), std::string::npos) << text;
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 15);
}

TEST(AComparison, OfASheetCostsByTheSquareMetre) {
  Prices prices;
  prices.of_sheet = {{50, 31.5}};
  const Table table = Compare_With(prices, Sheet(), ',');
  EXPECT_EQ(table.headings[Table::kCost], "t133 (1 m\xC2\xB2)");
  EXPECT_EQ(table.headings[Table::kHeatFlow], "t28 (t79)");
  EXPECT_EQ(At(table, 50, Table::kCost), "31,5");
}

}  // namespace
}  // namespace norvane
