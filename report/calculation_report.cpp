#include "report/calculation_report.h"

#include "calc/heat_loss.h"
#include "frame/shared_state.h"
#include "host/code_page.h"
#include "report/present_object.h"
#include "report/steps.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

using Line = CalculationReport::Line;

/// Where the lines of a report come from: the main screen and the texts of the language.
class Lines {
 public:
  Lines(const Module1& module1, const Wording& wording) : module1_(module1), wording_(wording) {}

  /// A field with its heading and its unit, as it shows.
  Line Of_Field(TextId heading, const char* symbol, const std::string& value, TextId unit) const {
    return {wording_(heading), symbol, value, wording_(unit)};
  }
  Line Of_Number(TextId heading, const char* symbol, double value) const {
    return {wording_(heading), symbol, Format(value, module1_.Locale()), {}};
  }
  /// A row of the results, which says itself what it is.
  Line Of_Labels(const CaptionField& heading, const char* symbol, const CaptionField& value,
                 const CaptionField& unit) const {
    return {Shown(heading), symbol, Shown(value), Shown(unit)};
  }
  std::string Shown(const CaptionField& field) const {
    return To_Utf8(field.Caption(), module1_.Text_Charset(field));
  }

 private:
  const Module1& module1_;
  const Wording& wording_;
};

std::vector<Line> Inputs(const Module1& module1, Warmt& warmt, const Lines& lines) {
  const bool heat_loss = warmt.Calc_Mode == "T";
  auto& fields = heat_loss ? warmt.txtT : warmt.txtC;
  std::vector<Line> inputs;
  const auto add = [&](TextId heading, const char* symbol, int row, TextId unit) {
    inputs.push_back(lines.Of_Field(heading, symbol, fields(row).Text(), unit));
  };
  add(TextId::kMediumTemperature, "T", 0, TextId::kCelsius);
  add(TextId::kAmbientTemperature, "Ta", 1, TextId::kCelsius);
  if (!heat_loss) {
    add(TextId::kRelativeHumidity, "\xCF\x86", 4, TextId::kCelsius);
    inputs.back().unit = "%";
  }
  if (module1.Sel_Size != kSheet) {
    add(TextId::kPipeDiameter, "d", 3, TextId::kMillimetre);
  }
  if (heat_loss) add(TextId::kInsulationThickness, "s", 2, TextId::kMillimetre);
  inputs.push_back(lines.Of_Field(TextId::kConductivity,
                                  "\xCE\xBB"
                                  "0",
                                  Text_Of_Single(module1.Lambda, module1.Locale()),
                                  TextId::kConductivityUnit));
  inputs.back().heading +=
      " (0 \xC2\xB0"
      "C)";
  inputs.push_back(lines.Of_Labels(warmt.Label3(1), "\xCE\xB1", warmt.Label4(1), warmt.Label9(1)));
  if (!heat_loss) return inputs;
  inputs.push_back(lines.Of_Number(TextId::kHoursPerDay, "h", module1.Hr_Day));
  inputs.push_back(lines.Of_Number(TextId::kNumberOfDays, "n", module1.Days));
  inputs.push_back(lines.Of_Number(TextId::kLength, "m", module1.Mtrs));
  return inputs;
}

std::vector<Line> Results(Warmt& warmt, const Lines& lines) {
  const auto row = [&](int heading, const char* symbol, int value) {
    return lines.Of_Labels(warmt.Label3(heading), symbol, warmt.Label4(value),
                           warmt.Label9(heading));
  };
  std::vector<Line> results;
  if (warmt.Calc_Mode != "T") {
    results.push_back(
        {lines.Shown(warmt.Label1(2)), "s", warmt.txtC(2).Text(), lines.Shown(warmt.Label7(2))});
  }
  results.push_back(row(0, "\xCE\xBB", 0));
  results.push_back(row(2, "Ts", 2));
  if (warmt.Calc_Mode != "T") return results;
  results.push_back(row(3, "q0", 3));
  results.push_back(row(4, "q", 4));
  results.push_back(row(5, "\xCE\x94q", 6));
  results.back().unit += ", " + lines.Shown(warmt.Label4(5));
  results.push_back(row(6, "G", 7));
  results.push_back(row(7, "O", 8));
  results.push_back(row(8, "E", 9));
  return results;
}

std::vector<CalculationReport::Step> Steps_Of_Present(const Module1& module1, Warmt& warmt) {
  const auto object = Present_Object(module1, warmt);
  if (!object) return {};
  return warmt.Calc_Mode == "T" ? Heat_Loss_Steps(*object, module1.Locale())
                                : Condensation_Steps(*object, module1.Locale());
}

}  // namespace

CalculationReport Report_Of(const Module1& module1, Warmt& warmt, const Wording& wording) {
  const Lines lines(module1, wording);
  CalculationReport report;
  report.mode = wording(warmt.Calc_Mode == "T" ? TextId::kHeatLossMode : TextId::kCondensationMode);
  report.object = lines.Shown(warmt.Label0);
  report.picture = warmt.Picture2.Picture();
  report.inputs = Inputs(module1, warmt, lines);
  report.results = Results(warmt, lines);
  report.steps = Steps_Of_Present(module1, warmt);
  return report;
}

}  // namespace norvane
