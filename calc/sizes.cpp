#include "calc/sizes.h"

#include "data/runtime_error.h"

namespace norvane {
namespace {

constexpr StockSize kSteelPipes[] = {
    {10, "1/8"},    {15, "1/4"},   {18, "3/8"}, {21, "1/2"},    {27, "3/4"},   {34, "1"},
    {42, "1 1/4"},  {48, "1 1/2"}, {60, "2"},   {70, ""},       {76, "2 1/2"}, {89, "3"},
    {102, "3 1/2"}, {108, ""},     {114, "4"},  {127, "4 1/2"}, {140, "5"},    {169, "6"},
    {194, "7"},     {219, "8"},    {245, "9"},  {273, "10"},    {324, "12"},   {356, "14"},
    {406, "16"},    {456, "18"},   {508, "20"}, {558, "22"},    {610, "24"},   {660, "26"},
    {712, "28"},    {762, "30"},   {813, "32"}, {864, "34"},    {915, "36"},
};
constexpr StockSize kCopperTubes[] = {
    {6, "1/4"},    {10, "3/8"},   {12, "1/2"},   {15, "5/8"},   {18, "3/4"},   {22, "7/8"},
    {25, "1"},     {28, "1 1/8"}, {35, "1 3/8"}, {42, "1 5/8"}, {54, "2 1/8"}, {57, ""},
    {67, "2 5/8"}, {76, "3"},     {80, "3 1/8"}, {89, "3 1/2"}, {108, ""},     {114, "4 1/2"},
};
constexpr StockSize kMetricPipes[] = {
    {12, ""}, {16, ""}, {20, ""}, {25, ""}, {32, ""}, {40, ""},
    {50, ""}, {63, ""}, {75, ""}, {80, ""}, {90, ""}, {108, ""},
};

constexpr StockSize kSteelInsulation[] = {
    {0, "0"}, {9, "3/8"}, {13, "1/2"}, {20, "3/4"}, {25, "1"}, {30, "1 1/4"},
};
constexpr StockSize kOtherInsulation[] = {
    {0, "0"}, {6, "1/4"}, {9, "3/8"}, {13, "1/2"}, {20, "3/4"}, {25, "1"}, {30, "1 1/4"},
};

constexpr std::int16_t kThickSteps[] = {6, 9, 13, 15, 20, 25, 30};

constexpr std::int16_t kLastInchFamily = 1;

std::string Inch_Text(std::span<const StockSize> sizes, std::int16_t Mm) {
  for (const StockSize& size : sizes) {
    if (size.mm > Mm) break;
    if (size.mm == Mm) return size.inch;
  }
  return {};
}

}  // namespace

std::span<const StockSize> Pipe_Sizes(int family) {
  switch (family) {
    case 0:
      return kSteelPipes;
    case 1:
      return kCopperTubes;
    case 2:
      return kMetricPipes;
    default:
      throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
}

std::span<const StockSize> Ins_Sizes(int family) {
  switch (family) {
    case 0:
      return kSteelInsulation;
    case 1:
    case 2:
      return kOtherInsulation;
    default:
      throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
}

std::span<const std::int16_t> Thick_Steps() { return kThickSteps; }

std::string Inch(std::int16_t Mm, std::int16_t Typ) {
  return Typ > kLastInchFamily ? std::string() : Inch_Text(Pipe_Sizes(Typ), Mm);
}

std::string InchIso(std::int16_t Mm, std::int16_t Typ) {
  return Typ > kLastInchFamily ? std::string() : Inch_Text(Ins_Sizes(Typ), Mm);
}

}  // namespace norvane
