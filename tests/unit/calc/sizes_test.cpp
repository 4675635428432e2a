#include "calc/sizes.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "../data/error_of.h"
#include "calc/conversions.h"

namespace norvane {
namespace {

using Stock = std::vector<std::pair<int, std::string>>;

Stock Read(std::span<const StockSize> sizes) {
  Stock stock;
  for (const StockSize& size : sizes) stock.emplace_back(size.mm, size.inch);
  return stock;
}

TEST(PipeSizes, OfSteelPipes) {
  EXPECT_EQ(
      Read(Pipe_Sizes(0)),
      (Stock{{10, "1/8"},    {15, "1/4"},   {18, "3/8"}, {21, "1/2"},    {27, "3/4"},   {34, "1"},
             {42, "1 1/4"},  {48, "1 1/2"}, {60, "2"},   {70, ""},       {76, "2 1/2"}, {89, "3"},
             {102, "3 1/2"}, {108, ""},     {114, "4"},  {127, "4 1/2"}, {140, "5"},    {169, "6"},
             {194, "7"},     {219, "8"},    {245, "9"},  {273, "10"},    {324, "12"},   {356, "14"},
             {406, "16"},    {456, "18"},   {508, "20"}, {558, "22"},    {610, "24"},   {660, "26"},
             {712, "28"},    {762, "30"},   {813, "32"}, {864, "34"},    {915, "36"}}));
}

TEST(PipeSizes, OfCopperTubes) {
  EXPECT_EQ(Read(Pipe_Sizes(1)), (Stock{{6, "1/4"},
                                        {10, "3/8"},
                                        {12, "1/2"},
                                        {15, "5/8"},
                                        {18, "3/4"},
                                        {22, "7/8"},
                                        {25, "1"},
                                        {28, "1 1/8"},
                                        {35, "1 3/8"},
                                        {42, "1 5/8"},
                                        {54, "2 1/8"},
                                        {57, ""},
                                        {67, "2 5/8"},
                                        {76, "3"},
                                        {80, "3 1/8"},
                                        {89, "3 1/2"},
                                        {108, ""},
                                        {114, "4 1/2"}}));
}

TEST(PipeSizes, OfMetricPipesHaveNoInchTexts) {
  EXPECT_EQ(Read(Pipe_Sizes(2)), (Stock{{12, ""},
                                        {16, ""},
                                        {20, ""},
                                        {25, ""},
                                        {32, ""},
                                        {40, ""},
                                        {50, ""},
                                        {63, ""},
                                        {75, ""},
                                        {80, ""},
                                        {90, ""},
                                        {108, ""}}));
}

TEST(InsulationSizes, OfSteelPipes) {
  EXPECT_EQ(Read(Ins_Sizes(0)),
            (Stock{{0, "0"}, {9, "3/8"}, {13, "1/2"}, {20, "3/4"}, {25, "1"}, {30, "1 1/4"}}));
}

TEST(InsulationSizes, OfCopperTubesAndMetricPipes) {
  const Stock sizes{{0, "0"},    {6, "1/4"}, {9, "3/8"},   {13, "1/2"},
                    {20, "3/4"}, {25, "1"},  {30, "1 1/4"}};
  EXPECT_EQ(Read(Ins_Sizes(1)), sizes);
  EXPECT_EQ(Read(Ins_Sizes(2)), sizes);
}

TEST(Sizes, AreOutOfRangeForAnyOtherFamily) {
  for (const int family : {-1, 3, 4, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Error_Of([&] { Pipe_Sizes(family); }), 9) << family;
    EXPECT_EQ(Error_Of([&] { Ins_Sizes(family); }), 9) << family;
  }
}

TEST(ThicknessSteps, AreThoseOfTheSpinPair) {
  const std::span<const std::int16_t> steps = Thick_Steps();
  EXPECT_EQ(std::vector<int>(steps.begin(), steps.end()),
            (std::vector<int>{6, 9, 13, 15, 20, 25, 30}));
}

TEST(Inch, IsTheTextOfAnExactSize) {
  EXPECT_EQ(Inch(21, 0), "1/2");
  EXPECT_EQ(Inch(22, 1), "7/8");
  EXPECT_EQ(Inch(10, 0), "1/8");
  EXPECT_EQ(Inch(10, 1), "3/8");
  EXPECT_EQ(Inch(915, 0), "36");
}

TEST(Inch, IsEmptyBetweenTwoSizes) { EXPECT_EQ(Inch(22, 0), ""); }

TEST(Inch, IsEmptyForASizeWithoutInchText) {
  EXPECT_EQ(Inch(70, 0), "");
  EXPECT_EQ(Inch(108, 1), "");
}

TEST(Inch, IsEmptyBelowAndBeyondTheSizes) {
  EXPECT_EQ(Inch(1000, 0), "");
  EXPECT_EQ(Inch(32767, 1), "");
  EXPECT_EQ(Inch(0, 0), "");
  EXPECT_EQ(Inch(-32768, 0), "");
}

TEST(Inch, IsEmptyForMetricPipesAndSheets) {
  EXPECT_EQ(Inch(25, 2), "");
  EXPECT_EQ(Inch(21, 3), "");
  EXPECT_EQ(Inch(21, 32767), "");
}

TEST(Inch, HasATextForTheStockSizesOfSteelAndCopperAlone) {
  for (const int family : {0, 1}) {
    for (int mm = -100; mm <= 1000; ++mm) {
      std::string expected;
      for (const auto& [size, inch] : Read(Pipe_Sizes(family))) {
        if (size == mm) expected = inch;
      }
      EXPECT_EQ(Inch(static_cast<std::int16_t>(mm), static_cast<std::int16_t>(family)), expected);
    }
  }
}

TEST(InchIso, IsTheTextOfAnExactSize) {
  EXPECT_EQ(InchIso(6, 1), "1/4");
  EXPECT_EQ(InchIso(13, 0), "1/2");
  EXPECT_EQ(InchIso(30, 1), "1 1/4");
}

TEST(InchIso, HasATextForZero) {
  EXPECT_EQ(InchIso(0, 0), "0");
  EXPECT_EQ(InchIso(0, 1), "0");
}

TEST(InchIso, IsEmptyForStopsThatTheFamilyHasNoTextFor) {
  EXPECT_EQ(InchIso(6, 0), "");
  EXPECT_EQ(InchIso(15, 0), "");
  EXPECT_EQ(InchIso(15, 1), "");
}

TEST(InchIso, IsEmptyBelowAndBeyondTheSizes) {
  EXPECT_EQ(InchIso(-1, 0), "");
  EXPECT_EQ(InchIso(31, 0), "");
  EXPECT_EQ(InchIso(100, 1), "");
}

TEST(InchIso, IsEmptyForMetricPipesAndSheets) {
  for (const StockSize& size : Ins_Sizes(2)) {
    EXPECT_EQ(InchIso(size.mm, 2), "") << size.mm;
    EXPECT_EQ(InchIso(size.mm, 3), "") << size.mm;
  }
}

TEST(InchIso, OfAThicknessIsThatOfItsRounding) {
  EXPECT_EQ(InchIso(To_Int16(12.6), 0), "1/2");
  EXPECT_EQ(InchIso(To_Int16(12.4), 0), "");
}

TEST(Inch, FailsForANegativeKind) {
  EXPECT_EQ(Error_Of([] { Inch(21, -1); }), 9);
  EXPECT_EQ(Error_Of([] { InchIso(13, -1); }), 9);
}

}  // namespace
}  // namespace norvane
