#include <benchmark/benchmark.h>

#include "calc/condensation.h"
#include "calc/heat_loss.h"

namespace norvane {
namespace {

void One_Heat_Loss(benchmark::State& state) {
  HeatLossInput input;
  input.T_med = 80;
  input.T_amb = 15;
  input.raw_T_med = 80;
  input.raw_T_amb = 15;
  input.d_ins = 0.013F;
  input.D_pipe = 0.021F;
  input.alpha_text = "12.5";
  input.Lambda = kDefaultLambda;
  input.Hr_Day = 24;
  input.Days = 30;
  input.Mtrs = 1;
  for (auto _ : state) benchmark::DoNotOptimize(Heat_Loss(input, Locale{}));
}
BENCHMARK(One_Heat_Loss);

/// The thickness in mm that comes out is a label: the search takes a step for each tenth of it.
void One_Condensation(benchmark::State& state, float T_med, float humidity, float D_pipe) {
  CondensInput input;
  input.T_med = T_med;
  input.T_amb = 24;
  input.humidity = humidity;
  input.D_pipe = D_pipe;
  input.alpha_text = "12.5";
  input.Lambda = kDefaultLambda;
  state.SetLabel(Format(Condensation(input, Locale{}).d_mm, "0.0", Locale{}) + " mm");
  for (auto _ : state) benchmark::DoNotOptimize(Condensation(input, Locale{}));
}
BENCHMARK_CAPTURE(One_Condensation, of_1_mm, 13.0F, 60.0F, 0.06F);
BENCHMARK_CAPTURE(One_Condensation, of_10_mm, -20.0F, 60.0F, 0.06F);
BENCHMARK_CAPTURE(One_Condensation, of_100_mm, -50.0F, 95.0F, 0.06F);

}  // namespace
}  // namespace norvane
