#include "study/curve.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/conversions.h"
#include "objects.h"
#include "study/result.h"

namespace norvane {
namespace {

/// The pipe of 21 mm as the formulas take it.
HeatFlowInput Steel_Flow() { return Flow_Input(Steel_Pipe()); }

CondensInput Cold_Pipe() {
  CondensInput input;
  input.T_med = 10;
  input.T_amb = 24;
  input.D_pipe = 0.010F;
  input.Lambda = 0.032F;
  return input;
}

const std::vector<double> kHumidities = {30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 85, 90, 95};

std::string Shown(float value) { return Format(value, "##0.0", Locale{}); }

TEST(HeatLossCurve, HasAPointForEachMillimetreOfTheField) {
  const auto points = Heat_Loss_Curve(Steel_Flow());
  ASSERT_EQ(points.size(), 101U);
  for (std::size_t i = 0; i < points.size(); ++i) {
    EXPECT_EQ(points[i].thickness_mm, static_cast<double>(i));
  }
}

// The textbook relations once more, in doubles: 0.039125 W/mK at the mean of 47.5 degrees.
TEST(HeatLossCurve, FollowsTheRelationsOfACylinder) {
  constexpr double kPi = 3.1415;
  constexpr double kLambda = 0.032 + 47.5 * 0.00015;
  for (const ThicknessPoint& point : Heat_Loss_Curve(Steel_Flow())) {
    const double outer = 0.021 + 2 * point.thickness_mm / 1000;
    const double resistance = std::log(outer / 0.021) / (2 * kLambda) + 1 / (12.5 * outer);
    const double flow = 65 * kPi / resistance;
    EXPECT_NEAR(point.result.Q_ins, flow, 1e-4) << point.thickness_mm;
    EXPECT_NEAR(point.result.T_surf, 15 + flow / (kPi * outer * 12.5), 1e-4) << point.thickness_mm;
  }
}

TEST(HeatLossCurve, BeginsWithTheBarePipeAndEndsNearTheSurroundings) {
  const auto points = Heat_Loss_Curve(Steel_Flow());
  EXPECT_EQ(points.front().result.Q_ins, points.front().result.Q_bare);
  EXPECT_EQ(Shown(points.front().result.T_surf), "80.0");
  EXPECT_EQ(Shown(points[13].result.Q_ins), "17.0");
  EXPECT_EQ(Shown(points[13].result.T_surf), "24.2");
  EXPECT_LT(points.back().result.T_surf, 17);
}

// 65 / (0.05 / 0.039125 + 1 / 12.5) is 47.87.
TEST(HeatLossCurve, FollowsTheRelationsOfAWall) {
  HeatFlowInput sheet = Steel_Flow();
  sheet.Sel_Size = kSheet;
  const auto points = Heat_Loss_Curve(sheet);
  EXPECT_NEAR(points[50].result.Q_ins, 47.87, 0.01);
  EXPECT_NEAR(points[0].result.Q_ins, 812.5, 1e-3);
}

TEST(HeatLossCurve, DoesNotReadTheThicknessOfTheObject) {
  HeatFlowInput insulated = Steel_Flow();
  insulated.d_ins = 0.03F;
  EXPECT_EQ(Heat_Loss_Curve(insulated)[7].result.Q_ins,
            Heat_Loss_Curve(Steel_Flow())[7].result.Q_ins);
}

TEST(HeatLossCurve, LeavesOutWhatHasNoResult) {
  HeatFlowInput beyond = Steel_Flow();
  beyond.Mtrs = 1e300;  // which no single holds in kilowatt-hours
  beyond.Days = 1e10;
  EXPECT_LT(Heat_Loss_Curve(beyond).size(), 101U);
}

// What the dew-point table holds at 24 degrees, and known thicknesses.
TEST(CondensationCurve, HasAPointForEachHumidityOfTheTable) {
  constexpr double kBelowAir[] = {18.6, 16.4, 14.4, 12.6, 11.1, 9.6, 8.2,
                                  7.0,  5.8,  4.7,  3.7,  2.7,  1.8, 0.8};
  const auto points = Condensation_Curve(Cold_Pipe(), 12.5F, kHumidities);
  ASSERT_EQ(points.size(), kHumidities.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    EXPECT_EQ(points[i].humidity, kHumidities[i]);
    EXPECT_NEAR(points[i].T_dew, 24 - kBelowAir[i], 1e-5);
  }
  EXPECT_EQ(Shown(points[6].result.d_mm), "1.7");
  EXPECT_EQ(Shown(points[6].result.T_surf), "15.8");
  EXPECT_EQ(Shown(points[0].result.d_mm), "0.0") << "the medium is warmer than the dew point";
}

// Of a wall: (dew point - medium) / (air - dew point) times lambda / alpha.
TEST(CondensationCurve, FollowsTheRelationOfAWall) {
  CondensInput sheet = Cold_Pipe();
  sheet.Sel_Size = kSheet;
  const double lambda = 0.032 + 17 * 0.00015;
  for (const HumidityPoint& point : Condensation_Curve(sheet, 12.5F, kHumidities)) {
    const double dew = static_cast<double>(point.T_dew);
    const double needed = std::max(0.0, (dew - 10) / (24 - dew) * lambda / 12.5 * 1000);
    EXPECT_NEAR(point.result.d_mm, needed, 1e-3) << point.humidity;
  }
}

TEST(CondensationCurve, LeavesOutWhatTheTableDoesNotHold) {
  CondensInput icy = Cold_Pipe();
  icy.T_amb = -20;
  EXPECT_EQ(Condensation_Curve(icy, 12.5F, kHumidities).front().humidity, 35);
  icy.T_amb = 25;
  EXPECT_TRUE(Condensation_Curve(icy, 12.5F, kHumidities).empty());
}

TEST(CondensationCurve, EndsBeforeAThicknessBeyondAllRange) {
  CondensInput cold = Cold_Pipe();
  cold.T_med = -50;
  const auto points = Condensation_Curve(cold, 0.005F, kHumidities);
  ASSERT_FALSE(points.empty());
  EXPECT_LT(points.size(), kHumidities.size());
  EXPECT_LT(points.back().result.d_mm, 32767.5F);
}

}  // namespace
}  // namespace norvane
