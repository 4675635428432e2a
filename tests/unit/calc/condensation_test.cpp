#include "calc/condensation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../data/error_of.h"
#include "calc/dew_point.h"
#include "calc/heat_loss.h"
#include "constants.h"

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

/// A medium of 10 degrees in air of 24 degrees and 60%, whose dew point is 15.8 degrees.
CondensInput Cold_Water(Kind kind, float D_pipe) {
  CondensInput input;
  input.T_med = 10;
  input.T_amb = 24;
  input.humidity = 60;
  input.D_pipe = D_pipe;
  input.Sel_Size = kind;
  input.Lambda = 0.032F;
  return input;
}

/// Thickness, conductivity, alpha and surface as the screen shows them.
Texts Texts_Of(const CondensInput& input, const Locale& locale = kPoint) {
  const CondensResult result = Condensation(input, locale);
  return {Format(result.d_mm, "##0.0", locale), Format(result.lambda_T, "0.000", locale),
          Format(result.Alpha, "##0.0", locale), Format(result.T_surf, "##0.0", locale)};
}

int Passes(const CondensInput& input) { return Condensation(input, kPoint).passes; }

int Condensation_Error(const CondensInput& input) {
  return Error_Of([&] { Condensation(input, kPoint); });
}

TEST(Condensation, OnASteelPipe) {
  const CondensInput input = Cold_Water(kSteelPipe, 0.01F);
  EXPECT_EQ(Texts_Of(input), (Texts{"1.7", "0.035", "12.5", "15.8"}));
  EXPECT_EQ(Passes(input), 18);
}

TEST(Condensation, OnACopperTubeHasTheSmallerAlpha) {
  const CondensInput input = Cold_Water(kCopperTube, 0.021F);
  EXPECT_EQ(Texts_Of(input), (Texts{"2.3", "0.035", "10.0", "15.9"}));
  EXPECT_EQ(Passes(input), 24);
}

TEST(Condensation, OnAMetricPipeIsThatOnACopperTube) {
  const CondensInput input = Cold_Water(kMetricPipe, 0.021F);
  EXPECT_EQ(Texts_Of(input), (Texts{"2.3", "0.035", "10.0", "15.9"}));
  EXPECT_EQ(Passes(input), 24);
}

TEST(Condensation, OnASheetHasASurfaceCloseToTheAir) {
  const CondensInput input = Cold_Water(kSheet, 0);
  EXPECT_EQ(Texts_Of(input), (Texts{"2.0", "0.035", "12.5", "24.0"}));
  EXPECT_EQ(Text_Of_Single(Condensation(input, kPoint).d_mm, kPoint).substr(0, 5), "1.955");
}

TEST(Condensation, OnASheetNeedsNoSearch) { EXPECT_EQ(Passes(Cold_Water(kSheet, 0)), 0); }

TEST(Condensation, OnASheetReadsNoDiameter) {
  EXPECT_EQ(Texts_Of(Cold_Water(kSheet, -1)), Texts_Of(Cold_Water(kSheet, 0)));
}

TEST(Condensation, OnAFreezingPipeTakesAHundredPasses) {
  CondensInput input = Cold_Water(kSteelPipe, 0.06F);
  input.T_med = -20;
  EXPECT_EQ(Texts_Of(input), (Texts{"9.9", "0.032", "12.5", "15.9"}));
  EXPECT_EQ(Passes(input), 100);
}

TEST(Condensation, OnTheThickestCoatTakesAPassATenthOfAMillimetre) {
  CondensInput input = Cold_Water(kSteelPipe, 0.915F);
  input.T_med = -50;
  input.T_amb = 40;
  input.humidity = 95;
  EXPECT_EQ(Texts_Of(input).front(), "188.3");
  EXPECT_EQ(Passes(input), 1884);
}

TEST(Condensation, IsShownInTheLocalesDecimals) {
  EXPECT_EQ(Texts_Of(Cold_Water(kSteelPipe, 0.01F), kComma),
            (Texts{"1,7", "0,035", "12,5", "15,8"}));
}

TEST(Condensation, TakesAnEmptyDiameterForTenMetres) {
  const CondensInput input = Cold_Water(kSteelPipe, 0);
  EXPECT_EQ(Texts_Of(input), (Texts{"2.0", "0.035", "12.5", "15.9"}));
  EXPECT_EQ(Passes(input), 21);
}

TEST(Condensation, CountsInTheUnroundedMediumTemperature) {
  CondensInput input = Cold_Water(kSteelPipe, 0.06F);
  EXPECT_EQ(Passes(input), 20);
  input.T_med = 9.6F;
  EXPECT_EQ(Passes(input), 22);
  input.T_med = 10.4F;
  EXPECT_EQ(Passes(input), 19);
}

TEST(Condensation, OfABetterConductorNeedsMore) {
  CondensInput input = Cold_Water(kSteelPipe, 0.01F);
  input.Lambda = 0.034F;
  EXPECT_EQ(Texts_Of(input), (Texts{"1.8", "0.037", "12.5", "15.8"}));
  EXPECT_EQ(Passes(input), 19);
}

TEST(Condensation, TakesTheTypedAlpha) {
  CondensInput input = Cold_Water(kSteelPipe, 0.01F);
  input.alpha_text = "5";
  EXPECT_EQ(Texts_Of(input), (Texts{"3.8", "0.035", "5.0", "15.9"}));
  EXPECT_EQ(Passes(input), 39);
}

TEST(Condensation, ReadsTheAlphaWithTheLocalesDecimalSeparator) {
  CondensInput input = Cold_Water(kSheet, 0);
  input.alpha_text = "12,5";
  EXPECT_EQ(Condensation(input, kComma).Alpha, 12.5F);
  EXPECT_EQ(Condensation(input, kPoint).Alpha, 125.0F);
}

TEST(Condensation, FallsBackToTheDefaultAlphaOfTheKind) {
  for (const char* text : {"", "0", "-4"}) {
    CondensInput input = Cold_Water(kSteelPipe, 0.021F);
    input.alpha_text = text;
    EXPECT_EQ(Condensation(input, kPoint).Alpha, 12.5F) << text;
    input.Sel_Size = kSheet;
    EXPECT_EQ(Condensation(input, kPoint).Alpha, 12.5F) << text;
    input.Sel_Size = kCopperTube;
    EXPECT_EQ(Condensation(input, kPoint).Alpha, 10.0F) << text;
    input.Sel_Size = kMetricPipe;
    EXPECT_EQ(Condensation(input, kPoint).Alpha, 10.0F) << text;
  }
}

TEST(CondensationNeedsNoThickness, ForAMediumAboveTheDewPoint) {
  CondensInput pipe = Cold_Water(kSteelPipe, 0.01F);
  pipe.T_med = 20;
  EXPECT_EQ(Texts_Of(pipe), (Texts{"0.0", "0.035", "12.5", "20.0"}));
  EXPECT_EQ(Passes(pipe), 1);
  CondensInput sheet = Cold_Water(kSheet, 0);
  sheet.T_med = 20;
  EXPECT_EQ(Texts_Of(sheet), (Texts{"0.0", "0.035", "12.5", "20.0"}));
  EXPECT_EQ(Condensation(sheet, kPoint).d_mm, 0.0F);
}

TEST(CondensationNeedsNoThickness, ForAMediumExactlyAtTheDewPoint) {
  CondensInput input = Cold_Water(kSteelPipe, 0.01F);
  input.T_med = Trt_DauwPunt(24, 60);
  EXPECT_EQ(Texts_Of(input).front(), "0.0");
  EXPECT_EQ(Passes(input), 1);
  input.Sel_Size = kSheet;
  EXPECT_EQ(Texts_Of(input).front(), "0.0");
}

TEST(Condensation, EndsItsSearchWhereBothSidesAreEqual) {
  // So wide a pipe that the first step is lost beside it: both sides of the test are exactly 0.
  CondensInput input = Cold_Water(kSteelPipe, 100000.0F);
  input.T_med = Trt_DauwPunt(24, 60);
  EXPECT_EQ(Passes(input), 1);
}

TEST(CondensationNeedsNoThickness, ForTheEmptyCellOfTheTable) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    CondensInput input = Cold_Water(kind, 0.01F);
    input.T_med = -30;
    input.T_amb = -20;
    input.humidity = 30;
    EXPECT_EQ(Texts_Of(input), (Texts{"0.0", "0.028", "12.5", "-30.0"})) << kind;
    EXPECT_EQ(Passes(input), kind == kSheet ? 0 : 1) << kind;
  }
}

TEST(CondensationNeedsNoThickness, ForATemperatureOutsideTheTable) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    CondensInput input = Cold_Water(kind, 0.01F);
    input.T_amb = 25;
    EXPECT_EQ(Texts_Of(input), (Texts{"0.0", "0.035", "12.5", "10.0"})) << kind;
  }
}

TEST(CondensationNeedsNoThickness, ForAHumidityOutsideTheTable) {
  for (const float humidity : {60.5F, 97.0F, 100.0F, 0.0F, -60.0F}) {
    CondensInput input = Cold_Water(kSteelPipe, 0.01F);
    input.humidity = humidity;
    EXPECT_EQ(Texts_Of(input).front(), "0.0") << humidity;
    EXPECT_EQ(Passes(input), 1) << humidity;
  }
}

TEST(CondensationFailure, OverflowWhereTheSearchPassesTheThickestCoat) {
  CondensInput input = Cold_Water(kSteelPipe, 0.06F);
  input.alpha_text = "0.0001";
  EXPECT_EQ(Condensation_Error(input), 6);
}

TEST(CondensationFailure, TypeMismatchForAnAlphaThatIsNoNumber) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    CondensInput input = Cold_Water(kind, 0.01F);
    input.alpha_text = "much";
    EXPECT_EQ(Condensation_Error(input), 13) << kind;
  }
}

TEST(CondensationFailure, DivisionByZeroForAnAlphaThatVanishesInSingle) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    CondensInput input = Cold_Water(kind, 0.01F);
    input.alpha_text = "1E-50";
    EXPECT_EQ(Condensation_Error(input), 11) << kind;
  }
}

TEST(CondensationFailure, DivisionByZeroForAZeroConductivity) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    CondensInput input = Cold_Water(kind, 0.01F);
    input.T_amb = 24;
    input.T_med = -24;
    input.Lambda = 0;
    EXPECT_EQ(Condensation_Error(input), 11) << kind;
  }
}

TEST(CondensationFailure, LogarithmOfANegativeRatio) {
  // At 5 mm the outer diameter of this pipe reaches zero.
  CondensInput input = Cold_Water(kSteelPipe, -0.01F);
  input.alpha_text = "0.01";
  EXPECT_EQ(Condensation_Error(input), 5);
}

TEST(CondensationFailure, OverflowWhereASheetsThicknessLeavesTheSingleRange) {
  CondensInput input = Cold_Water(kSheet, 0);
  input.T_amb = 24;
  input.Lambda = 3e38F;
  EXPECT_EQ(Condensation_Error(input), 6);
}

}  // namespace
}  // namespace norvane
