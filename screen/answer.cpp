#include "screen/answer.h"

#include <algorithm>

#include "calc/dew_point.h"
#include "calc/shown_number.h"
#include "calc/sizes.h"
#include "screen/inputs.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr int kTenths = 1;  // the decimals of thickness and temperatures

/// The first step that isn't below the shown thickness.
std::optional<std::int16_t> Next_Size(float d_mm) {
  const std::int64_t shown = Shown(d_mm, kTenths);
  if (shown == 0) return std::nullopt;
  const auto steps = Thick_Steps();
  const auto next = std::ranges::find_if(steps, [&](auto mm) { return mm * 10 >= shown; });
  return next == steps.end() ? std::nullopt : std::optional(*next);
}

}  // namespace

std::optional<Answer> Answer_On_Screen(const Module1& module1, Warmt& warmt) {
  if (const auto input = Heat_Loss_On_Screen(module1, warmt)) {
    Answer answer{warmt.Label4(4).Caption(), warmt.Label9(4).Caption(), true, {}, {}};
    // Where nothing is saved the screen keeps the percentage of before.
    if (Heat_Loss(*input).savings) answer.saving = warmt.Label4(5).Caption();
    return answer;
  }
  if (const auto shown = Condensation_On_Screen(module1, warmt)) {
    const CondensResult result = Condensation(shown->input, shown->Alpha);
    return Answer{
        warmt.txtC(2).Text(), warmt.Label7(2).Caption(), false, {}, Next_Size(result.d_mm)};
  }
  return std::nullopt;
}

std::optional<DewPointOnScreen> Dew_Point_On_Screen(const Module1& module1, Warmt& warmt) {
  const auto shown = Condensation_On_Screen(module1, warmt);
  if (!shown) return std::nullopt;
  const CondensInput& input = shown->input;
  const float T_dew = Trt_DauwPunt(input.T_amb, input.humidity);
  // Every difference that the table holds is above 0.
  if (T_dew == input.T_amb) return std::nullopt;
  DewPointOnScreen told{
      T_dew, {}, input.T_med, input.T_amb, Condensation(input, shown->Alpha).T_surf};
  if (input.Sel_Size == kSheet) {
    // By the relation of the needed thickness, or the medium's own where none is needed.
    told.T_surf = std::max(T_dew, input.T_med);
  } else {
    // Of the shown numbers, so that the three agree.
    const std::int64_t tenths = Shown(told.T_surf, kTenths) - Shown(T_dew, kTenths);
    told.surface_above = static_cast<float>(tenths) / 10.0F;
  }
  return told;
}

}  // namespace norvane
