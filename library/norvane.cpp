#include "norvane.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <span>
#include <string>

#include "study/result.h"

namespace norvane {
namespace {

static_assert(NORVANE_PLACES == kHeatLossColumns.size());
static_assert(int{NORVANE_SHEET} == int{kSheet});

Object Object_Of(const norvane_object_1& given) {
  Object object;
  // A kind that no 16 bits hold is none either way.
  object.kind =
      static_cast<std::int16_t>(std::clamp<std::int32_t>(given.kind, -1, NORVANE_SHEET + 1));
  object.medium_C = given.medium_C;
  object.ambient_C = given.ambient_C;
  object.humidity_percent = given.humidity_percent;
  object.thickness_mm = given.thickness_mm;
  object.diameter_mm = given.diameter_mm;
  object.lambda_W_mK = given.lambda_W_mK;
  object.alpha_W_m2K = given.alpha_W_m2K;
  object.length_m = given.length_m;
  object.area_m2 = given.area_m2;
  object.hours_per_day = given.hours_per_day;
  object.days = given.days;
  return object;
}

void Begin(norvane_result_1& result, std::int32_t status, const std::string& reason) {
  std::fill(std::begin(result.value), std::end(result.value), kNotGiven);
  std::fill(std::begin(result.shown), std::end(result.shown), kNotGiven);
  std::fill(std::begin(result.reason), std::end(result.reason), '\0');
  reason.copy(result.reason, sizeof(result.reason) - 1);
  result.status = status;
}

/// The doubles nearest to the numbers that are shown.
void Show(std::span<const std::int64_t> shown, std::span<const ResultColumn> columns,
          norvane_result_1& result) {
  for (std::size_t i = 0; i < shown.size(); ++i) {
    result.shown[i] = static_cast<double>(shown[i]) / std::pow(10.0, columns[i].decimals);
  }
}

void Take(const HeatLossResult& loss, norvane_result_1& result) {
  Begin(result, loss.savings ? NORVANE_RESULT : NORVANE_NO_SAVING, "");
  const double flows[] = {loss.lambda_T, loss.Alpha, loss.T_surf, loss.Q_bare, loss.Q_ins};
  std::copy(std::begin(flows), std::end(flows), result.value);
  if (loss.savings) {
    result.value[NORVANE_SAVING_PERCENT] = loss.savings->Saving_Pct;
    result.value[NORVANE_SAVING] = loss.savings->difference;
    result.value[NORVANE_GAS] = loss.savings->gas;
    result.value[NORVANE_OIL] = loss.savings->oil;
    result.value[NORVANE_ELECTRICITY] = loss.savings->electricity;
  }
  const ShownHeatLoss shown = Shown_Heat_Loss(loss);
  Show(std::span(shown.values).first(shown.saves ? shown.values.size() : kFirstSaving),
       kHeatLossColumns, result);
}

void Take(const CondensResult& condensation, norvane_result_1& result) {
  Begin(result, NORVANE_RESULT, "");
  const double values[] = {condensation.d_mm, condensation.lambda_T, condensation.Alpha,
                           condensation.T_surf};
  std::copy(std::begin(values), std::end(values), result.value);
  Show(Shown_Condensation(condensation), kCondensationColumns, result);
}

/// Nothing is thrown into C: what no result has a reason for, such as a lack of memory, is one too.
template <class Question>
std::int32_t Answer(const norvane_object_1* object, norvane_result_1* result,
                    const Question& question) {
  try {
    const auto answer = question(Object_Of(*object));
    if (const auto* reason = std::get_if<Reason>(&answer)) {
      Begin(*result, NORVANE_NO_RESULT, Words(*reason));
    } else {
      Take(std::get<0>(answer), *result);
    }
  } catch (const std::exception& failure) {
    Begin(*result, NORVANE_NO_RESULT, failure.what());
  }
  return result->status;
}

}  // namespace
}  // namespace norvane

void norvane_usual_object_1(norvane_object_1* object) {
  const norvane::Object usual;
  *object = {usual.medium_C,      usual.ambient_C,   usual.humidity_percent,
             usual.thickness_mm,  usual.diameter_mm, usual.lambda_W_mK,
             usual.alpha_W_m2K,   usual.length_m,    usual.area_m2,
             usual.hours_per_day, usual.days,        usual.kind};
}

int32_t norvane_heat_loss_1(const norvane_object_1* object, norvane_result_1* result) {
  return norvane::Answer(object, result, norvane::Heat_Loss_Of);
}

int32_t norvane_condensation_1(const norvane_object_1* object, norvane_result_1* result) {
  return norvane::Answer(object, result, norvane::Condensation_Of);
}
