#include "screen/inputs.h"

#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

float Metres(const TextField& millimetres) { return To_Single(Val(millimetres.Text()) / 1000.0); }

/// The surface temperature has a number in both modes, as long as there is anything to calculate.
bool Shows_Results(Warmt& warmt) { return !warmt.Label4(2).Caption().empty(); }

}  // namespace

HeatLossInput Heat_Loss_Input(const Module1& module1, Warmt& warmt) {
  HeatLossInput input;
  input.raw_T_med = Val(warmt.txtT(0).Text());
  input.raw_T_amb = Val(warmt.txtT(1).Text());
  input.T_med = To_Int16(input.raw_T_med);
  input.T_amb = To_Int16(input.raw_T_amb);
  input.d_ins = Metres(warmt.txtT(2));
  if (module1.Sel_Size != kSheet) input.D_pipe = Metres(warmt.txtT(3));
  input.alpha_text = warmt.Text4(1).Text();
  input.Sel_Size = module1.Sel_Size;
  input.Lambda = module1.Lambda;
  input.Hr_Day = module1.Hr_Day;
  input.Days = module1.Days;
  input.Mtrs = module1.Mtrs;
  return input;
}

CondensInput Condensation_Input(const Module1& module1, Warmt& warmt) {
  CondensInput input;
  input.T_med = To_Single(Val(warmt.txtC(0).Text()));
  input.T_amb = To_Single(Val(warmt.txtC(1).Text()));
  input.humidity = To_Single(Val(warmt.txtC(4).Text()));
  if (module1.Sel_Size != kSheet) input.D_pipe = Metres(warmt.txtC(3));
  input.alpha_text = warmt.Text4(1).Text();
  input.Sel_Size = module1.Sel_Size;
  input.Lambda = module1.Lambda;
  return input;
}

// A field keeps what has ended the program, while the message about it stands.

std::optional<HeatFlowInput> Heat_Loss_On_Screen(const Module1& module1, Warmt& warmt) {
  if (warmt.Calc_Mode != "T" || !Shows_Results(warmt)) return std::nullopt;
  try {
    HeatFlowInput input = In_Numbers(Heat_Loss_Input(module1, warmt), module1.Locale());
    input.Alpha = module1.Alpha;
    return input;
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::optional<CondensationOnScreen> Condensation_On_Screen(const Module1& module1, Warmt& warmt) {
  if (warmt.Calc_Mode == "T" || !Shows_Results(warmt)) return std::nullopt;
  try {
    return CondensationOnScreen{Condensation_Input(module1, warmt), module1.Alpha};
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::vector<double> Known_Humidities(const Warmt& warmt) {
  std::vector<double> humidities;
  for (const std::optional<double>& entry : warmt.Dew_Hums) {
    if (entry.value_or(0) > 0) humidities.push_back(*entry);
  }
  return humidities;
}

}  // namespace norvane
