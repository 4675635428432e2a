#include "desktop/chart_of_screen.h"

#include <algorithm>

#include "calc/limits.h"
#include "calc/sizes.h"
#include "desktop/desktop.h"
#include "desktop/own_texts.h"
#include "screen/inputs.h"
#include "screen/warmt.h"
#include "study/curve.h"

namespace norvane {
namespace {

constexpr int kSteps = 4;

QString With_Unit(const QString& name, const QString& unit) { return name + ", " + unit; }

/// Room for all values of the lines that go by one of the axes, and for `least` to `most`.
ChartAxis Axis_For(const Chart& chart, bool on_right, float least, float most) {
  for (const ChartLine& line : chart.lines) {
    if (line.on_right != on_right) continue;
    for (const float value : line.values) {
      least = std::min(least, value);
      most = std::max(most, value);
    }
    if (chart.present) {
      least = std::min(least, line.at_present);
      most = std::max(most, line.at_present);
    }
  }
  return Round_Axis(least, most, kSteps);
}

Chart Heat_Loss_Chart(const Desktop& desktop, const HeatFlowInput& input, const Locale& locale) {
  Chart chart;
  chart.locale = locale;
  chart.name =
      With_Unit(desktop.Text(TextId::kInsulationThickness), desktop.Text(TextId::kMillimetre));
  chart.across = {0, kMostThickness, kMostThickness / 5};
  for (const std::int16_t stop : Thick_Steps()) chart.stops.push_back(stop);

  ChartLine flow{With_Unit(desktop.Text(TextId::kInsulatedHeatFlow),
                           desktop.Text(Heat_Flow_Unit_Text(input.Sel_Size))),
                 false,
                 {},
                 0};
  ChartLine surface{
      With_Unit(desktop.Text(TextId::kSurfaceTemperature), desktop.Text(TextId::kCelsius)),
      true,
      {},
      0};
  for (const ThicknessPoint& point : Heat_Loss_Curve(input)) {
    chart.places.push_back(static_cast<float>(point.thickness_mm));
    flow.values.push_back(point.result.Q_ins);
    surface.values.push_back(point.result.T_surf);
  }
  if (chart.places.empty()) return chart;
  const HeatLossResult present = Heat_Loss(input);
  chart.present = To_Single(static_cast<double>(input.d_ins) * 1000.0);
  flow.at_present = present.Q_ins;
  surface.at_present = present.T_surf;
  chart.lines = {flow, surface};
  chart.left = Axis_For(chart, false, 0, 0);
  chart.right = Axis_For(chart, true, present.T_surf, present.T_surf);
  return chart;
}

Chart Condensation_Chart(const Desktop& desktop, const CondensationOnScreen& shown,
                         const std::vector<double>& humidities, const Locale& locale) {
  const QString celsius = desktop.Text(TextId::kCelsius);
  Chart chart;
  chart.locale = locale;
  chart.name = With_Unit(desktop.Text(TextId::kRelativeHumidity), "%");
  chart.across = {humidities.front(), humidities.back(), 10};
  ChartLine thickness{
      With_Unit(desktop.Text(TextId::kInsulationThickness), desktop.Text(TextId::kMillimetre)),
      false,
      {},
      0};
  ChartLine surface{With_Unit(desktop.Text(TextId::kSurfaceTemperature), celsius), true, {}, 0};
  ChartLine dew_point{With_Unit(Own_Text(desktop, TextId::kDewPoint), celsius), true, {}, 0};
  for (const HumidityPoint& point : Condensation_Curve(shown.input, shown.Alpha, humidities)) {
    chart.places.push_back(static_cast<float>(point.humidity));
    thickness.values.push_back(point.result.d_mm);
    surface.values.push_back(point.result.T_surf);
    dew_point.values.push_back(point.T_dew);
    if (point.humidity != static_cast<double>(shown.input.humidity)) continue;
    chart.present = shown.input.humidity;
    thickness.at_present = point.result.d_mm;
    surface.at_present = point.result.T_surf;
    dew_point.at_present = point.T_dew;
  }
  if (chart.places.empty()) return chart;
  chart.stops = chart.places;
  const float any_temperature = dew_point.values.front();
  chart.lines = {thickness, surface, dew_point};
  chart.left = Axis_For(chart, false, 0, 0);
  chart.right = Axis_For(chart, true, any_temperature, any_temperature);
  return chart;
}

}  // namespace

Chart Chart_Of_Screen(Desktop& desktop, Warmt& warmt) {
  const Module1& state = desktop.program().State();
  if (const auto input = Heat_Loss_On_Screen(state, warmt)) {
    return Heat_Loss_Chart(desktop, *input, state.Locale());
  }
  if (const auto shown = Condensation_On_Screen(state, warmt)) {
    return Condensation_Chart(desktop, *shown, Known_Humidities(warmt), state.Locale());
  }
  return {};
}

}  // namespace norvane
