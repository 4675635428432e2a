#include "study/object.h"

namespace norvane {
namespace {

constexpr double kAnyNumber = std::numeric_limits<double>::max();
constexpr Limits kUnlimited = {-kAnyNumber, kAnyNumber};

constexpr Column kColumns[] = {
    {"name", nullptr, kUnlimited, true, true, false, "", "any text, such as a place or a number"},
    {"kind", nullptr, kUnlimited, true, true, true, "",
     "steel, copper, metric or sheet; or 0, 1, 2, 3"},
    {"medium_C", &Object::medium_C, kTemperatureLimits[0], true, true, true, "",
     "temperature of the medium"},
    {"ambient_C", &Object::ambient_C, kTemperatureLimits[1], true, true, true, "",
     "temperature of the surroundings; for condensation one of the dew-point table"},
    {"humidity_percent",
     &Object::humidity_percent,
     {0, 100},
     false,
     true,
     true,
     "",
     "relative humidity of the air, one of the dew-point table"},
    {"thickness_mm",
     &Object::thickness_mm,
     {0, kMostThickness},
     true,
     false,
     true,
     "",
     "thickness of the insulation"},
    {"diameter_mm",
     &Object::diameter_mm,
     {kLeastDiameter, kAnyNumber},
     true,
     true,
     true,
     "",
     "outer diameter of the bare pipe; a sheet leaves it empty"},
    {"lambda_W_mK",
     &Object::lambda_W_mK,
     {kLeastLambda, kMostLambda},
     true,
     true,
     false,
     "0.038",
     "conductivity of the insulation, as declared at 40 degrees"},
    {"alpha_W_m2K",
     &Object::alpha_W_m2K,
     {-kAnyNumber, 1000},
     true,
     true,
     false,
     "12.5, copper and metric 10",
     "surface heat-transfer coefficient"},
    {"length_m", &Object::length_m, {0, kMostLength}, true, false, false, "1", "length of a pipe"},
    {"area_m2", &Object::area_m2, {0, kMostLength}, true, false, false, "1", "area of a sheet"},
    {"hours_per_day",
     &Object::hours_per_day,
     {0, 24},
     true,
     false,
     false,
     "24",
     "operating hours a day"},
    {"days", &Object::days, {0, 366}, true, false, false, "30", "operating days"},
};

}  // namespace

std::span<const Column> Columns() { return kColumns; }

bool Is_Asked(const Column& column, Question question) {
  switch (question) {
    case Question::kHeatLoss:
      return column.for_heat_loss;
    case Question::kComparison:
      return column.for_heat_loss && column.number != &Object::thickness_mm;
    case Question::kCondensation:
      break;
  }
  return column.for_condensation;
}

}  // namespace norvane
