#include "study/result.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "calc/conversions.h"
#include "calc/shown_number.h"
#include "objects.h"

namespace norvane {
namespace {

/// The texts of a result, or its reason alone.
std::vector<std::string> Texts_Of(const Object& object) {
  const auto result = Heat_Loss_Of(object);
  if (const auto* reason = std::get_if<Reason>(&result)) return {Words(*reason)};
  const ShownHeatLoss shown = Shown_Heat_Loss(std::get<HeatLossResult>(result));
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < (shown.saves ? shown.values.size() : kFirstSaving); ++i) {
    char text[kLongestShown];
    texts.emplace_back(text, Write_Shown(text, shown.values[i], kHeatLossColumns[i].decimals, '.'));
  }
  return texts;
}

std::string Reason_Of(const Object& object) { return Texts_Of(object).front(); }

using TextList = std::vector<std::string>;

TEST(HeatLossOfAnObject, IsThatOfTheScreen) {
  EXPECT_EQ(Texts_Of(Steel_Pipe()), (TextList{"0.039", "12.5", "24.2", "53.6", "17.0", "68",
                                              "36.58", "2.72", "2.16", "26.34"}));
  EXPECT_EQ(Texts_Of(Sheet()), (TextList{"0.039", "12.5", "18.8", "812.5", "47.9", "94", "764.63",
                                         "56.82", "45.19", "550.54"}));
}

TEST(HeatLossOfAnObject, HasNoSavingsWhereTheInsulatedOneLosesMore) {
  EXPECT_EQ(Texts_Of(Thin_Tube()).size(), kFirstSaving);
}

TEST(HeatLossOfAnObject, OfAColdMediumKeepsItsSavings) {
  Object object = Thin_Tube();
  object.medium_C = 5;
  EXPECT_EQ(Texts_Of(object).size(), kHeatLossColumns.size());
}

TEST(HeatLossOfAnObject, CountsDecimalsWhereTheScreenRounds) {
  Object object = Steel_Pipe();
  object.medium_C = 80.4;
  EXPECT_GT(Val(Texts_Of(object)[3]), 53.6);
  object = Steel_Pipe();
  object.length_m = 2.5;
  EXPECT_EQ(Texts_Of(object)[9], "65.85");  // 36.582 W for 720 hours and 2.5 m
}

TEST(HeatLossOfAnObject, TakesTheUsualAlphaForNoneAndForNought) {
  for (const double alpha : {kNotGiven, 0.0, -3.0}) {
    Object object = Steel_Pipe();
    object.alpha_W_m2K = alpha;
    EXPECT_EQ(Texts_Of(object)[1], "12.5");
    object.kind = kCopperTube;
    EXPECT_EQ(Texts_Of(object)[1], "10.0");
  }
}

TEST(HeatLossOfAnObject, TakesTheLengthOfAPipeAndTheAreaOfASheet) {
  Object object = Steel_Pipe();
  object.area_m2 = 7;
  EXPECT_EQ(Texts_Of(object)[9], "26.34");
  object = Sheet();
  object.length_m = 7;
  EXPECT_EQ(Texts_Of(object)[9], "550.54");
  object.area_m2 = 2;
  EXPECT_EQ(Texts_Of(object)[9], "1101.07");
}

TEST(HeatLossOfAnObject, HasItsReasonOutsideTheFieldsLimits) {
  struct Case {
    double Object::*field;
    double least, most;
    double step;
    const char* name;
  };
  const Case cases[] = {{&Object::medium_C, -50, 115, 0.001, "medium_C"},
                        {&Object::ambient_C, -60, 110, 0.001, "ambient_C"},
                        {&Object::thickness_mm, 0, 100, 0.001, "thickness_mm"},
                        {&Object::diameter_mm, 6, 915, 0.001, "diameter_mm"},
                        {&Object::lambda_W_mK, 0.015, 0.06, 0.0001, "lambda_W_mK"},
                        {&Object::length_m, 0, 10000, 0.001, "length_m"},
                        {&Object::hours_per_day, 0, 24, 0.001, "hours_per_day"},
                        {&Object::days, 0, 366, 0.001, "days"}};
  for (const Case& one : cases) {
    Object object = Steel_Pipe();
    for (const double good : {one.least, one.most}) {
      object.*one.field = good;
      EXPECT_GT(Texts_Of(object).size(), 1U) << one.name << Reason_Of(object);
    }
    object.*one.field = one.least - one.step;
    EXPECT_TRUE(Reason_Of(object).starts_with(std::string(one.name) + " is below")) << one.name;
    object.*one.field = one.most + one.step;
    EXPECT_TRUE(Reason_Of(object).starts_with(std::string(one.name) + " is above")) << one.name;
  }
}

TEST(HeatLossOfAnObject, HasItsReasonBeyondTheLastSizeOfItsFamily) {
  Object object = Steel_Pipe();
  object.kind = kMetricPipe;
  object.diameter_mm = 108;
  EXPECT_GT(Texts_Of(object).size(), 1U);
  object.diameter_mm = 109;
  EXPECT_EQ(Reason_Of(object), "diameter_mm is above 108");
}

TEST(HeatLossOfAnObject, HasItsReasonWithoutANumberThatItNeeds) {
  EXPECT_EQ(Reason_Of(Object()), "medium_C is missing");
  Object object = Steel_Pipe();
  object.diameter_mm = kNotGiven;
  EXPECT_EQ(Reason_Of(object), "diameter_mm is missing");
  object.kind = kSheet;
  EXPECT_GT(Texts_Of(object).size(), 1U);
  object.kind = 4;
  EXPECT_EQ(Reason_Of(object), "kind is none of steel copper metric sheet");
}

TEST(HeatLossOfAnObject, IsThatOfTheScreensRecordForAnyWholeNumbers) {
  RandomObjects objects(3);
  for (int i = 0; i < 20000; ++i) {
    const Object object = objects.Draw();
    HeatLossInput input;
    input.T_med = To_Int16(object.medium_C);
    input.T_amb = To_Int16(object.ambient_C);
    input.raw_T_med = object.medium_C;
    input.raw_T_amb = object.ambient_C;
    input.d_ins = To_Single(object.thickness_mm / 1000.0);
    if (object.kind != kSheet) input.D_pipe = To_Single(object.diameter_mm / 1000.0);
    input.alpha_text = Format(object.alpha_W_m2K, Locale{});
    input.Sel_Size = object.kind;
    input.Lambda = To_Single(To_Single(object.lambda_W_mK) - (0.038 - 0.032));
    input.Hr_Day = To_Int16(object.hours_per_day);
    input.Days = To_Int16(object.days);
    input.Mtrs = To_Int16(object.kind == kSheet ? object.area_m2 : object.length_m);
    const HeatLossResult expected = Heat_Loss(input, Locale{});
    const auto result = std::get<HeatLossResult>(Heat_Loss_Of(object));
    ASSERT_EQ(result.Q_ins, expected.Q_ins);
    ASSERT_EQ(result.T_surf, expected.T_surf);
    ASSERT_EQ(result.savings.has_value(), expected.savings.has_value());
    if (!expected.savings) continue;
    ASSERT_EQ(result.savings->Saving_Pct, expected.savings->Saving_Pct);
    ASSERT_EQ(result.savings->gas, expected.savings->gas);
    ASSERT_EQ(result.savings->electricity, expected.savings->electricity);
  }
}

// The critical radius of a cylinder is lambda / alpha: behind it, every millimetre holds back more.
TEST(HeatLossOfAnObject, NeverGrowsWithTheThicknessBeyondTheCriticalRadius) {
  RandomObjects objects(5);
  for (int i = 0; i < 2000; ++i) {
    Object object = objects.Draw();
    if (object.medium_C == object.ambient_C) continue;
    float before = -1;
    for (object.thickness_mm = 0; object.thickness_mm <= 100; object.thickness_mm += 2.5) {
      const auto result = std::get<HeatLossResult>(Heat_Loss_Of(object));
      const double critical_mm = 1000.0 * result.lambda_T / result.Alpha;
      if (object.kind != kSheet && object.diameter_mm / 2 + object.thickness_mm < critical_mm) {
        continue;
      }
      const float flow = std::abs(result.Q_ins);
      // A single's last digit is all that may be lost on the way.
      if (before >= 0) {
        EXPECT_LE(flow, before * (1 + 1e-6F));
      }
      before = flow;
    }
  }
}

Object Cold_Object() {
  Object object;
  object.medium_C = 10;
  object.ambient_C = 24;
  object.humidity_percent = 60;
  object.diameter_mm = 10;
  return object;
}

TEST(CondensationOfAnObject, IsThatOfTheScreen) {
  const auto shown = [](const Object& object) {
    return Shown_Condensation(std::get<CondensResult>(Condensation_Of(object)));
  };
  EXPECT_EQ(shown(Cold_Object()), (std::array<std::int64_t, 4>{17, 35, 125, 158}));
  Object object = Cold_Object();
  object.kind = kCopperTube;
  object.diameter_mm = 21;
  EXPECT_EQ(shown(object), (std::array<std::int64_t, 4>{23, 35, 100, 159}));
  object = Cold_Object();
  object.kind = kSheet;
  EXPECT_EQ(shown(object), (std::array<std::int64_t, 4>{20, 35, 125, 240}));
}

TEST(CondensationOfAnObject, NeedsNoInsulationAboveTheDewPoint) {
  Object object = Cold_Object();
  object.medium_C = 20;
  EXPECT_EQ(Shown_Condensation(std::get<CondensResult>(Condensation_Of(object)))[0], 0);
}

TEST(CondensationOfAnObject, HasItsReasonOutsideTheDewPointTable) {
  const auto reason = [](const Object& object) {
    return Words(std::get<Reason>(Condensation_Of(object)));
  };
  Object object = Cold_Object();
  object.ambient_C = 25;
  EXPECT_EQ(reason(object), "the dew-point table has no such temperature and humidity");
  object.ambient_C = -20;
  object.humidity_percent = 30;
  EXPECT_EQ(reason(object), "the dew-point table has no such temperature and humidity");
  object.humidity_percent = kNotGiven;
  EXPECT_EQ(reason(object), "humidity_percent is missing");
}

}  // namespace
}  // namespace norvane
