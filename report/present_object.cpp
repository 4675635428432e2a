#include "report/present_object.h"

#include "calc/heat_loss.h"
#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// A field reads a point, whatever the user's signs are; a result is shown in these.
double Thickness_Of(const Module1& module1, Warmt& warmt) {
  if (warmt.Calc_Mode == "T") return Val(warmt.txtT(2).Text());
  const std::string& shown = warmt.txtC(2).Text();
  return shown.empty() ? kNotGiven : To_Number(shown, module1.Locale());
}

Object Read_Fields(const Module1& module1, Warmt& warmt) {
  auto& fields = warmt.Calc_Mode == "T" ? warmt.txtT : warmt.txtC;
  Object object;
  object.kind = module1.Sel_Size;
  object.medium_C = To_Int16(Val(fields(0).Text()));
  object.ambient_C = To_Int16(Val(fields(1).Text()));
  object.thickness_mm = Thickness_Of(module1, warmt);
  if (object.kind != kSheet) object.diameter_mm = Val(fields(3).Text());
  if (warmt.Calc_Mode != "T") object.humidity_percent = Val(fields(4).Text());
  object.lambda_W_mK = static_cast<double>(module1.Lambda) + kLambdaDifference;
  object.alpha_W_m2K = Effective_Alpha(warmt.Text4(1).Text(), module1.Sel_Size, module1.Locale());
  object.length_m = module1.Mtrs;
  object.area_m2 = module1.Mtrs;
  object.hours_per_day = module1.Hr_Day;
  object.days = module1.Days;
  return object;
}

}  // namespace

std::optional<Object> Present_Object(const Module1& module1, Warmt& warmt) {
  try {
    return Read_Fields(module1, warmt);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace norvane
