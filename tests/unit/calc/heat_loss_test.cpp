#include "calc/heat_loss.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../data/error_of.h"
#include "constants.h"

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

/// A medium of 80 degrees in surroundings of 15, 13 mm on a steel pipe of 21 mm.
HeatLossInput Steel_Pipe() {
  HeatLossInput input;
  input.T_med = 80;
  input.T_amb = 15;
  input.raw_T_med = 80;
  input.raw_T_amb = 15;
  input.d_ins = 0.013F;
  input.D_pipe = 0.021F;
  input.Sel_Size = kSteelPipe;
  input.Lambda = 0.032F;
  input.Hr_Day = 24;
  input.Days = 30;
  input.Mtrs = 1;
  return input;
}

HeatLossInput Sheet_50_Mm() {
  HeatLossInput input = Steel_Pipe();
  input.Sel_Size = kSheet;
  input.d_ins = 0.05F;
  return input;
}

/// 1 mm on a tube of 6 mm: the surface gained by the insulation outweighs what it holds back.
HeatLossInput Thin_Tube(std::int16_t T_med, std::int16_t T_amb) {
  HeatLossInput input = Steel_Pipe();
  input.T_med = T_med;
  input.T_amb = T_amb;
  input.raw_T_med = T_med;
  input.raw_T_amb = T_amb;
  input.d_ins = 0.001F;
  input.D_pipe = 0.006F;
  input.Sel_Size = kCopperTube;
  return input;
}

/// What the screen shows of a result; without savings, the first five texts alone.
Texts Texts_Of(const HeatLossInput& input, const Locale& locale = kPoint) {
  const HeatLossResult result = Heat_Loss(input, locale);
  Texts texts{Format(result.lambda_T, "0.000", locale), Format(result.Alpha, "##0.0", locale),
              Format(result.T_surf, "##0.0", locale), Format(result.Q_bare, "####0.0", locale),
              Format(result.Q_ins, "####0.0", locale)};
  if (!result.savings) return texts;
  const Savings& savings = *result.savings;
  texts.push_back(Format(static_cast<double>(savings.Saving_Pct), locale) + "%");
  texts.push_back(Format(savings.difference, "####0.00", locale));
  texts.push_back(Format(savings.gas, "####0.00", locale));
  texts.push_back(Format(savings.oil, "####0.00", locale));
  texts.push_back(Format(savings.electricity, "####0.00", locale));
  return texts;
}

int Heat_Loss_Error(const HeatLossInput& input) {
  return Error_Of([&] { Heat_Loss(input, kPoint); });
}

TEST(HeatLoss, OfASteelPipe) {
  EXPECT_EQ(Texts_Of(Steel_Pipe()), (Texts{"0.039", "12.5", "24.2", "53.6", "17.0", "68%", "36.58",
                                           "2.72", "2.16", "26.34"}));
}

TEST(HeatLoss, OfASheet) {
  EXPECT_EQ(Texts_Of(Sheet_50_Mm()), (Texts{"0.039", "12.5", "18.8", "812.5", "47.9", "94%",
                                            "764.63", "56.82", "45.19", "550.54"}));
}

TEST(HeatLoss, OfACopperTubeHasTheSmallerAlpha) {
  HeatLossInput input = Steel_Pipe();
  input.Sel_Size = kCopperTube;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.039", "10.0", "26.1", "42.9", "16.4", "62%", "26.44", "1.97",
                                    "1.56", "19.04"}));
}

TEST(HeatLoss, OfAMetricPipeIsThatOfACopperTube) {
  HeatLossInput tube = Steel_Pipe();
  tube.Sel_Size = kCopperTube;
  HeatLossInput metric = tube;
  metric.Sel_Size = kMetricPipe;
  EXPECT_EQ(Texts_Of(metric), Texts_Of(tube));
}

TEST(HeatLoss, IsShownInTheLocalesDecimals) {
  EXPECT_EQ(Texts_Of(Steel_Pipe(), kComma), (Texts{"0,039", "12,5", "24,2", "53,6", "17,0", "68%",
                                                   "36,58", "2,72", "2,16", "26,34"}));
}

TEST(HeatLoss, WithoutInsulationSavesNothing) {
  HeatLossInput input = Steel_Pipe();
  input.d_ins = 0;
  input.D_pipe = 0.01F;
  EXPECT_EQ(Texts_Of(input),
            (Texts{"0.039", "12.5", "80.0", "25.5", "25.5", "0%", "0.00", "0.00", "0.00", "0.00"}));
  const HeatLossResult result = Heat_Loss(input, kPoint);
  EXPECT_EQ(result.T_surf, 80.0F);
  EXPECT_EQ(result.Q_ins, result.Q_bare);
}

TEST(HeatLoss, OfAGreenProduct) {
  HeatLossInput input = Steel_Pipe();
  input.Lambda = 0.034F;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.041", "12.5", "24.6", "53.6", "17.8", "67%", "35.84", "2.66",
                                    "2.12", "25.81"}));
}

TEST(HeatLoss, BetweenEqualTemperaturesIsZeroAndSavesZeroWithDecimals) {
  HeatLossInput input = Steel_Pipe();
  input.T_med = input.T_amb = 20;
  input.raw_T_med = input.raw_T_amb = 20;
  EXPECT_EQ(Texts_Of(input),
            (Texts{"0.035", "12.5", "20.0", "0.0", "0.0", "0%", "0.00", "0.00", "0.00", "0.00"}));
}

TEST(HeatLoss, CountsInTheRoundedTemperatures) {
  HeatLossInput input = Steel_Pipe();
  input.raw_T_med = 80.4;
  input.raw_T_amb = 14.6;
  EXPECT_EQ(Texts_Of(input), Texts_Of(Steel_Pipe()));
}

TEST(HeatLoss, BetweenTemperaturesThatRoundToTheSameIsZero) {
  HeatLossInput input = Steel_Pipe();
  input.T_med = input.T_amb = 20;
  input.raw_T_med = 20.4;
  input.raw_T_amb = 19.6;
  ASSERT_TRUE(Heat_Loss(input, kPoint).savings);
  EXPECT_EQ(Heat_Loss(input, kPoint).savings->difference, 0.0F);
}

TEST(HeatLoss, OfAColdMediumIsNegativeAndItsSavingsArePositive) {
  HeatLossInput input = Steel_Pipe();
  input.T_med = 6;
  input.T_amb = 20;
  input.raw_T_med = 6;
  input.raw_T_amb = 20;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.034", "12.5", "18.2", "-11.5", "-3.2", "72%", "8.30", "0.62",
                                    "0.49", "5.98"}));
}

TEST(HeatLoss, OfAHotMediumHasNoSavingsWhereTheInsulatedTubeLosesMore) {
  EXPECT_EQ(Texts_Of(Thin_Tube(80, 15)), (Texts{"0.039", "10.0", "65.2", "12.3", "12.6"}));
}

TEST(HeatLoss, OfAColdMediumHasSavingsEvenWhereTheInsulatedTubeGainsMore) {
  EXPECT_EQ(Texts_Of(Thin_Tube(15, 80)), (Texts{"0.039", "10.0", "29.8", "-12.3", "-12.6", "3%",
                                                "0.37", "0.03", "0.02", "0.27"}));
}

TEST(HeatLoss, AsksTheUnroundedTemperaturesWhichSideIsWarmer) {
  HeatLossInput input = Thin_Tube(80, 15);
  input.raw_T_med = input.raw_T_amb = 15;
  EXPECT_TRUE(Heat_Loss(input, kPoint).savings);
  input.raw_T_med = 15.1;
  EXPECT_FALSE(Heat_Loss(input, kPoint).savings);
}

TEST(HeatLoss, TakesAnEmptyDiameterForTenMetres) {
  HeatLossInput input = Steel_Pipe();
  input.D_pipe = 0;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.039", "12.5", "27.6", "25524.7", "4960.7", "81%", "20563.98",
                                    "1528.15", "1215.27", "14806.07"}));
}

TEST(HeatLoss, OfASheetReadsNoDiameter) {
  HeatLossInput input = Sheet_50_Mm();
  input.D_pipe = -1;
  EXPECT_EQ(Texts_Of(input), Texts_Of(Sheet_50_Mm()));
}

TEST(HeatLoss, SavesOverAllHoursDaysAndMetres) {
  HeatLossInput input = Steel_Pipe();
  input.T_med = 115;
  input.T_amb = -60;
  input.raw_T_med = 115;
  input.raw_T_amb = -60;
  input.d_ins = 0.1F;
  input.D_pipe = 0.915F;
  input.Days = 365;
  input.Mtrs = 10000;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.036", "12.5", "-55.5", "6287.9", "195.8", "97%", "6092.12",
                                    "55080552.34", "43803229.95", "533669300.00"}));
}

TEST(HeatLoss, DiffersByTheMetreWhateverTheLength) {
  HeatLossInput input = Steel_Pipe();
  input.Mtrs = 250;
  EXPECT_EQ(Heat_Loss(input, kPoint).savings->difference,
            Heat_Loss(Steel_Pipe(), kPoint).savings->difference);
}

TEST(HeatLoss, SavesNegativeAmountsOverANegativeLength) {
  HeatLossInput input = Steel_Pipe();
  input.Mtrs = -100;
  EXPECT_EQ(Texts_Of(input), (Texts{"0.039", "12.5", "24.2", "53.6", "17.0", "68%", "36.58",
                                    "-271.85", "-216.19", "-2633.91"}));
}

TEST(HeatLoss, SavesNothingInNoTimeOrOverNoLength) {
  for (std::int16_t HeatLossInput::*factor :
       {&HeatLossInput::Hr_Day, &HeatLossInput::Days, &HeatLossInput::Mtrs}) {
    HeatLossInput input = Steel_Pipe();
    input.*factor = 0;
    const HeatLossResult result = Heat_Loss(input, kPoint);
    ASSERT_TRUE(result.savings);
    EXPECT_EQ(result.savings->gas, 0.0);
    EXPECT_EQ(result.savings->oil, 0.0);
    EXPECT_EQ(result.savings->electricity, 0.0F);
    EXPECT_EQ(result.savings->Saving_Pct, 68);
  }
}

TEST(EffectiveAlpha, IsTheTypedNumber) {
  HeatLossInput input = Steel_Pipe();
  input.alpha_text = "8";
  EXPECT_EQ(Texts_Of(input), (Texts{"0.039", "8.0", "28.3", "34.3", "15.8", "54%", "18.54", "1.38",
                                    "1.10", "13.35"}));
}

TEST(EffectiveAlpha, IsReadWithTheLocalesDecimalSeparator) {
  EXPECT_EQ(Effective_Alpha("8.5", kSteelPipe, kPoint), 8.5F);
  EXPECT_EQ(Effective_Alpha("8,5", kSteelPipe, kComma), 8.5F);
  EXPECT_EQ(Effective_Alpha("8.5", kSteelPipe, kComma), 85.0F);
  EXPECT_EQ(Effective_Alpha("8,5", kSteelPipe, kPoint), 85.0F);
}

TEST(EffectiveAlpha, IsRoundedToSingle) {
  EXPECT_EQ(Effective_Alpha("12.3456789012", kSheet, kPoint), 12.3456789012F);
}

TEST(DefaultAlpha, IsSmallerForCopperTubesAndMetricPipes) {
  EXPECT_EQ(Default_Alpha(kSteelPipe), 12.5F);
  EXPECT_EQ(Default_Alpha(kCopperTube), 10.0F);
  EXPECT_EQ(Default_Alpha(kMetricPipe), 10.0F);
  EXPECT_EQ(Default_Alpha(kSheet), 12.5F);
}

TEST(EffectiveAlpha, FallsBackToTheDefaultOfTheKind) {
  for (const char* text : {"", "0", "0.0", "-5", "-0.001"}) {
    EXPECT_EQ(Effective_Alpha(text, kSteelPipe, kPoint), 12.5F) << text;
    EXPECT_EQ(Effective_Alpha(text, kCopperTube, kPoint), 10.0F) << text;
    EXPECT_EQ(Effective_Alpha(text, kMetricPipe, kPoint), 10.0F) << text;
    EXPECT_EQ(Effective_Alpha(text, kSheet, kPoint), 12.5F) << text;
  }
}

TEST(EffectiveAlpha, FailsForATextThatIsNoNumber) {
  for (const char* text : {"abc", " ", "12.5 W", "-"}) {
    EXPECT_EQ(Error_Of([&] { Effective_Alpha(text, kSteelPipe, kPoint); }), 13) << text;
    HeatLossInput input = Sheet_50_Mm();
    input.alpha_text = text;
    EXPECT_EQ(Heat_Loss_Error(input), 13) << text;
  }
}

TEST(EffectiveAlpha, OverflowsBeyondTheSingleRange) {
  EXPECT_EQ(Error_Of([&] { Effective_Alpha("1E39", kSteelPipe, kPoint); }), 6);
  EXPECT_EQ(Error_Of([&] { Effective_Alpha("1E999", kSteelPipe, kPoint); }), 6);
}

TEST(HeatLossFailure, OverflowWhereTheTemperaturesLeave16Bits) {
  HeatLossInput sum = Steel_Pipe();
  sum.T_med = 32767;
  sum.T_amb = 1;
  EXPECT_EQ(Heat_Loss_Error(sum), 6);
  HeatLossInput difference = Steel_Pipe();
  difference.T_med = 32767;
  difference.T_amb = -1;
  EXPECT_EQ(Heat_Loss_Error(difference), 6);
}

TEST(HeatLossFailure, OverflowWhereAFlowLeavesTheSingleRange) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    HeatLossInput input = Steel_Pipe();
    input.Sel_Size = kind;
    input.alpha_text = "3E38";
    input.D_pipe = 10;
    EXPECT_EQ(Heat_Loss_Error(input), 6) << kind;
  }
}

TEST(HeatLossFailure, OverflowWhereThePercentageLeaves16Bits) {
  // A wire of a tenth of a millimetre in a thick and well conducting coat.
  HeatLossInput input = Thin_Tube(15, 80);
  input.D_pipe = 0.0001F;
  input.d_ins = 0.1F;
  input.Lambda = 1000000.0F;
  EXPECT_EQ(Heat_Loss_Error(input), 6);
}

TEST(HeatLossFailure, DivisionByZeroForAZeroConductivity) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    HeatLossInput input = Steel_Pipe();
    input.Sel_Size = kind;
    input.T_med = 20;
    input.T_amb = -20;
    input.Lambda = 0;
    EXPECT_EQ(Heat_Loss_Error(input), 11) << kind;
  }
}

TEST(HeatLossFailure, DivisionByZeroForAnAlphaThatVanishesInSingle) {
  for (const Kind kind : {kSteelPipe, kSheet}) {
    HeatLossInput input = Steel_Pipe();
    input.Sel_Size = kind;
    input.alpha_text = "1E-50";
    EXPECT_EQ(Heat_Loss_Error(input), 11) << kind;
  }
}

TEST(HeatLossFailure, LogarithmOfANegativeOrZeroRatio) {
  HeatLossInput input = Steel_Pipe();
  input.D_pipe = -0.01F;
  EXPECT_EQ(Heat_Loss_Error(input), 5);
  input.D_pipe = -0.026F;
  EXPECT_EQ(Heat_Loss_Error(input), 5);
}

}  // namespace
}  // namespace norvane
