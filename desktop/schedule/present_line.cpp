#include "desktop/schedule/present_line.h"

#include <cmath>
#include <map>
#include <string>

#include "calc/conversions.h"
#include "calc/limits.h"
#include "desktop/desktop.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

using Texts = std::map<std::string_view, std::string>;

/// The texts of a row in its decimal sign. What is no finite number stays empty.
class Writer {
 public:
  explicit Writer(char decimal) : locale_{decimal} {}

  std::string Number(double value) const {
    return std::isfinite(value) ? Format(value, locale_) : std::string();
  }
  /// Halves go to the even number, as where the screen takes whole ones.
  std::string Whole(const TextField& field) const {
    return Number(std::nearbyint(Val(field.Text())));
  }
  std::string Single(float value) const { return Text_Of_Single(value, locale_); }

 private:
  Locale locale_;
};

Texts Present_Texts(Desktop& desktop, char decimal) {
  Module1& state = desktop.program().State();
  Warmt& warmt = *state.forms.warmt;
  const Writer writer(decimal);
  const bool sheet = state.Sel_Size == kSheet;
  auto& fields = warmt.Calc_Mode == "T" ? warmt.txtT : warmt.txtC;
  const auto kind = static_cast<std::size_t>(state.Sel_Size);
  return {{"name", desktop.Text(warmt.Combo1.Text()).toStdString()},
          {"kind", std::string(kKindWords.at(kind))},
          {"medium_C", writer.Whole(fields(0))},
          {"ambient_C", writer.Whole(fields(1))},
          {"thickness_mm", writer.Number(Val(fields(2).Text()))},
          {"diameter_mm", sheet ? std::string() : writer.Number(Val(fields(3).Text()))},
          {"lambda_W_mK", writer.Single(static_cast<float>(state.Lambda + kLambdaDifference))},
          {"alpha_W_m2K", writer.Single(state.Alpha)},
          {sheet ? "area_m2" : "length_m", writer.Number(state.Mtrs)},
          {"hours_per_day", writer.Number(state.Hr_Day)},
          {"days", writer.Number(state.Days)}};
}

}  // namespace

ScheduleLine Present_Line(Desktop& desktop, const ScheduleTable& table) {
  const Texts texts = Present_Texts(desktop, table.Decimal());
  ScheduleLine line = table.Empty_Line();
  for (std::size_t column = 0; column < table.Columns(); ++column) {
    const Column* const meaning = table.Meaning_Of(column);
    if (meaning == nullptr) continue;
    const auto text = texts.find(meaning->name);
    if (text != texts.end()) line = table.With_Text(std::move(line), column, text->second);
  }
  return line;
}

}  // namespace norvane
