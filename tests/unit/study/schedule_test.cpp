#include "study/schedule.h"

#include <gtest/gtest.h>

#include <limits>

#include "objects.h"

namespace norvane {
namespace {

TEST(Schedule, MixesPipesAndSheetsEachWithItsOwnResult) {
  const std::vector<Object> objects = {Steel_Pipe(), Sheet(), Object(), Thin_Tube()};
  const ScheduleResult schedule = Schedule(objects);
  ASSERT_EQ(schedule.rows.size(), 4U);
  EXPECT_EQ(std::get<ShownHeatLoss>(schedule.rows[0]).values[7], 272);
  EXPECT_EQ(std::get<ShownHeatLoss>(schedule.rows[1]).values[7], 5682);
  EXPECT_EQ(Words(std::get<Reason>(schedule.rows[2])), "medium_C is missing");
  EXPECT_FALSE(std::get<ShownHeatLoss>(schedule.rows[3]).saves);
}

TEST(Schedule, SumsWhatTheRowsShow) {
  const std::vector<Object> objects = {Steel_Pipe(), Sheet(), Object(), Thin_Tube()};
  const ScheduleSums sums = Schedule(objects).sums;
  EXPECT_EQ(sums.rows, 4);
  EXPECT_EQ(sums.without_result, 1);
  EXPECT_EQ(sums.without_saving, 1);
  EXPECT_EQ(sums.gas.Text(2, '.'), "59.54");
  EXPECT_EQ(sums.oil.Text(2, '.'), "47.35");
  EXPECT_EQ(sums.electricity.Text(2, ','), "576,88");
}

TEST(Schedule, OfNothingHasSumsOfNought) { EXPECT_EQ(Schedule({}).sums.gas.Text(2, '.'), "0.00"); }

TEST(Schedule, SumsAgreeWithTheRowsOfAnyObjects) {
  RandomObjects objects(17);
  std::vector<Object> drawn;
  for (int i = 0; i < 20000; ++i) drawn.push_back(objects.Draw());
  const ScheduleResult schedule = Schedule(drawn);
  std::int64_t gas = 0, oil = 0, electricity = 0;
  for (const ScheduleRow& row : schedule.rows) {
    const auto& shown = std::get<ShownHeatLoss>(row);
    if (!shown.saves) continue;
    gas += shown.values[7];
    oil += shown.values[8];
    electricity += shown.values[9];
  }
  ShownSum expected;
  expected.Add(gas);
  EXPECT_EQ(schedule.sums.gas, expected);
  EXPECT_EQ(schedule.sums.oil.Text(0, '.'), std::to_string(oil));
  EXPECT_EQ(schedule.sums.electricity.Text(0, '.'), std::to_string(electricity));
}

TEST(ScheduleSums, OfPartsAreThoseOfTheWhole) {
  RandomObjects objects(19);
  std::vector<Object> drawn;
  for (int i = 0; i < 100; ++i) drawn.push_back(objects.Draw());
  drawn[7] = Object();
  ScheduleSums parts = Schedule(std::span(drawn).subspan(0, 30)).sums;
  parts.Add(Schedule(std::span(drawn).subspan(30)).sums);
  const ScheduleSums whole = Schedule(drawn).sums;
  EXPECT_EQ(parts.rows, whole.rows);
  EXPECT_EQ(parts.without_result, whole.without_result);
  EXPECT_EQ(parts.gas, whole.gas);
  EXPECT_EQ(parts.electricity, whole.electricity);
}

TEST(ShownSum, GoesOnBeyond64Bits) {
  ShownSum sum;
  for (int i = 0; i < 4; ++i) sum.Add(std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(sum.Text(0, '.'), "36893488147419103228");
  EXPECT_EQ(sum.Text(2, ','), "368934881474191032,28");
  ShownSum twice = sum;
  twice.Add(sum);
  EXPECT_EQ(twice.Text(2, '.'), "737869762948382064.56");
  sum = ShownSum();
  sum.Add(1'000'000'000'000'000'000);
  EXPECT_EQ(sum.Text(2, '.'), "10000000000000000.00");
}

}  // namespace
}  // namespace norvane
