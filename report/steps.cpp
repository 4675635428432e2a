#include "report/steps.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "calc/decimal.h"
#include "calc/dew_point.h"
#include "calc/heat_loss_steps.h"
#include "calc/shown_number.h"
#include "study/result.h"

namespace norvane {
namespace {

using Step = CalculationReport::Step;

constexpr const char* kCelsius =
    "\xC2\xB0"
    "C";
constexpr const char* kConductivity = "W/mK";

bool Is_Letter(char c) {
  // Greek letters are bytes above 127.
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
}

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

std::string Number(double value, const Locale& locale) {
  constexpr int kDigits = 6;
  constexpr int kWidest = 15;
  return Decimal(value, kDigits).Bare(kWidest, locale.decimal_separator);
}

/// Signs of two and more bytes in a formula, which are no letters.
constexpr std::string_view kSigns[] = {"\xC2\xB7", "\xE2\x88\x92", "\xE2\x89\xA5"};

/// The length of the sign at the front, 0 where there is none.
std::size_t Sign(std::string_view text) {
  for (const std::string_view sign : kSigns) {
    if (text.starts_with(sign)) return sign.size();
  }
  return 0;
}

std::size_t Length_Of_Name(std::string_view text) {
  if (!Is_Letter(text.front())) return 0;
  std::size_t length = 0;
  while (length < text.size() && Sign(text.substr(length)) == 0 &&
         (Is_Letter(text[length]) || Is_Digit(text[length]))) {
    ++length;
  }
  return length;
}

/// Writes steps one after the other; each may use what those before have given.
class Steps {
 public:
  Steps(std::vector<Symbol> symbols, const Locale& locale)
      : symbols_(std::move(symbols)), locale_(locale) {}

  /// `name` = `formula`, with as many digits as intermediate results have.
  void Add(const std::string& name, const std::string& formula, double value,
           const std::string& unit = {}) {
    Write(name, formula, Number(value, locale_), unit);
    Know(name, value);
  }
  /// The same for a result, as the main screen shows it.
  void Add_Shown(const std::string& name, const std::string& formula, double value,
                 std::int64_t shown, int decimals, const std::string& unit) {
    std::array<char, kLongestShown> text{};
    char* const end = Write_Shown(text.data(), shown, decimals, locale_.decimal_separator);
    Write(name, formula, std::string(text.data(), end), unit);
    Know(name, value);
  }
  void Know(const std::string& name, double value) { symbols_.push_back({name, value}); }
  /// What is so, and what follows from it.
  void Add_Condition(const std::string& formula, const std::string& result) {
    steps_.push_back({formula, With_Numbers(formula, symbols_, locale_), result});
  }
  std::vector<Step> Taken() { return std::move(steps_); }

 private:
  void Write(const std::string& name, const std::string& formula, const std::string& result,
             const std::string& unit) {
    steps_.push_back({name + " = " + formula, With_Numbers(formula, symbols_, locale_),
                      result + (unit.empty() ? "" : " " + unit)});
  }

  std::vector<Symbol> symbols_;
  Locale locale_;
  std::vector<Step> steps_;
};

void Add_Conductivity(Steps& steps, double T_mean, double lambda) {
  steps.Add("Tm", "(T + Ta) / 2", T_mean, kCelsius);
  steps.Add("\xCE\xBB",
            "\xCE\xBB"
            "0 + k \xC2\xB7 Tm",
            lambda, kConductivity);
}

/// The results of a heat loss in the order of `kHeatLossColumns`.
struct Shown_Result {
  const ShownHeatLoss& shown;
  Steps& steps;
  std::string per_metre;

  void Add(const std::string& name, const std::string& formula, double value, std::size_t column,
           const std::string& unit) const {
    steps.Add_Shown(name, formula, value, shown.values[column], kHeatLossColumns[column].decimals,
                    unit);
  }
};

void Add_Flows(const Shown_Result& results, const HeatLossResult& result, bool sheet) {
  enum : std::size_t { kSurface = 2, kBare = 3, kInsulated = 4 };
  if (sheet) {
    results.Add("Ts", "(T \xE2\x88\x92 Ta) / (\xCE\xB1 \xC2\xB7 s / \xCE\xBB + 1) + Ta",
                result.T_surf, kSurface, kCelsius);
    results.Add("q0", "(T \xE2\x88\x92 Ta) \xC2\xB7 \xCE\xB1", result.Q_bare, kBare,
                results.per_metre);
    results.Add("q", "(T \xE2\x88\x92 Ta) / (s / \xCE\xBB + 1 / \xCE\xB1)", result.Q_ins,
                kInsulated, results.per_metre);
    return;
  }
  results.Add("Ts",
              "(T \xE2\x88\x92 Ta) / (\xCE\xB1 \xC2\xB7 D \xC2\xB7 L / (2 \xC2\xB7 \xCE\xBB) + 1) "
              "+ Ta",
              result.T_surf, kSurface, kCelsius);
  results.Add("q0", "(T \xE2\x88\x92 Ta) \xC2\xB7 \xCE\xB1 \xC2\xB7 \xCF\x80 \xC2\xB7 d",
              result.Q_bare, kBare, results.per_metre);
  results.Add("q",
              "(T \xE2\x88\x92 Ta) \xC2\xB7 \xCF\x80 / (L / (2 \xC2\xB7 \xCE\xBB) + 1 / (\xCE\xB1 "
              "\xC2\xB7 D))",
              result.Q_ins, kInsulated, results.per_metre);
}

/// Heat is in kilojoules an hour, and counts in all hours, days and metres.
void Add_Savings(const Shown_Result& results, const HeatLossResult& result) {
  enum : std::size_t { kPercent = 5, kDifference = 6, kGas = 7, kOil = 8, kElectricity = 9 };
  if (!result.savings) return;
  const Savings& saved = *result.savings;
  const bool gains = result.Q_bare < result.Q_ins;
  results.Add("\xCE\x94q", gains ? "q \xE2\x88\x92 q0" : "q0 \xE2\x88\x92 q", saved.difference,
              kDifference, results.per_metre);
  if (result.Q_bare > 0) {
    results.Add("p", "\xCE\x94q / q0 \xC2\xB7 100", saved.Saving_Pct, kPercent, "%");
  } else if (result.Q_bare < 0) {
    results.Add("p", "\xE2\x88\x92 \xCE\x94q / q0 \xC2\xB7 100", saved.Saving_Pct, kPercent, "%");
  }
  const std::string heat = "\xCE\x94q \xC2\xB7 3600 / 1000 / ";
  const std::string period = " \xC2\xB7 h \xC2\xB7 n \xC2\xB7 m";
  results.Add("G", heat + "Hg" + period, saved.gas, kGas, "m\xC2\xB3");
  results.Add("O", heat + "Ho" + period, saved.oil, kOil, "l");
  results.Add("E", heat + "He" + period, static_cast<double>(saved.electricity), kElectricity,
              "kWh");
}

std::vector<Symbol> Symbols_Of(const HeatFlowInput& input) {
  return {{"T", input.T_med},
          {"Ta", input.T_amb},
          {"s", input.d_ins},
          {"d", input.D_pipe},
          {"\xCE\xB1", input.Alpha},
          {"\xCE\xBB"
           "0",
           input.Lambda},
          {"k", kLambdaSlope},
          {"\xCF\x80", kPi},
          {"h", input.Hr_Day},
          {"n", input.Days},
          {"m", input.Mtrs},
          {"Hg", kGasHeatingValue},
          {"Ho", kOilHeatingValue},
          {"He", kKilojoulePerKwh}};
}

}  // namespace

std::string With_Numbers(const std::string& formula, const std::vector<Symbol>& symbols,
                         const Locale& locale) {
  std::string text;
  std::string_view rest = formula;
  while (!rest.empty()) {
    const std::size_t sign = Sign(rest);
    const std::size_t name = sign > 0 ? 0 : Length_Of_Name(rest);
    const std::string_view part = rest.substr(0, std::max<std::size_t>(1, std::max(sign, name)));
    // The last one of a name: what a step has given stands for what was there before.
    const auto symbol = std::find_if(symbols.rbegin(), symbols.rend(),
                                     [&](const Symbol& each) { return each.name == part; });
    if (name == 0 || symbol == symbols.rend()) {
      text += part;
    } else if (symbol->value < 0) {
      text += "(" + Number(symbol->value, locale) + ")";
    } else {
      text += Number(symbol->value, locale);
    }
    rest.remove_prefix(part.size());
  }
  return text;
}

std::vector<Step> Heat_Loss_Steps(const Object& object, const Locale& locale) {
  const auto outcome = Heat_Loss_Of(object);
  const auto* result = std::get_if<HeatLossResult>(&outcome);
  if (result == nullptr) return {};
  const bool sheet = object.kind == kSheet;
  const HeatFlowInput input = Flow_Input(object);
  const HeatLossSteps passed = Steps_Of(input);
  Steps steps(Symbols_Of(input), locale);
  Add_Conductivity(steps, passed.T_mean, result->lambda_T);
  if (!sheet) {
    steps.Add("D", "d + 2 \xC2\xB7 s", passed.D_out, "m");
    steps.Add("L", "ln(D / d)", passed.L);
  }
  const ShownHeatLoss shown = Shown_Heat_Loss(*result);
  const Shown_Result results{shown, steps, sheet ? "W/m\xC2\xB2" : "W/m"};
  Add_Flows(results, *result, sheet);
  Add_Savings(results, *result);
  return steps.Taken();
}

std::vector<Step> Condensation_Steps(const Object& object, const Locale& locale) {
  const auto outcome = Condensation_Of(object);
  const auto* result = std::get_if<CondensResult>(&outcome);
  if (result == nullptr) return {};
  const auto shown = Shown_Condensation(*result);
  const double humidity = object.humidity_percent;
  const double T_dew = Trt_DauwPunt(To_Single(object.ambient_C), To_Single(humidity));
  HeatFlowInput input = Flow_Input(object);
  input.d_ins = To_Single(result->d_mm / 1000.0);
  std::vector<Symbol> symbols = Symbols_Of(input);
  symbols.push_back({"\xCF\x86", humidity});
  Steps steps(symbols, locale);
  Add_Conductivity(steps, (object.medium_C + object.ambient_C) / 2, result->lambda_T);
  steps.Add("Td", "f(Ta, \xCF\x86)", T_dew, kCelsius);
  const double ratio = (T_dew - object.medium_C) / (object.ambient_C - T_dew);
  steps.Add("R", "(Td \xE2\x88\x92 T) / (Ta \xE2\x88\x92 Td)", ratio);
  if (object.kind == kSheet) {
    steps.Add_Shown("s", "1000 \xC2\xB7 R \xC2\xB7 \xCE\xBB / \xCE\xB1", result->d_mm, shown[0],
                    kCondensationColumns[0].decimals, "mm");
  } else {
    const double D_pipe = input.D_pipe;
    const double D_out = D_pipe + 2 * static_cast<double>(input.d_ins);
    steps.Add("N", "R \xC2\xB7 2 \xC2\xB7 \xCE\xBB / \xCE\xB1",
              ratio * 2 * result->lambda_T / result->Alpha, "m");
    steps.Add("D", "d + 2 \xC2\xB7 s", D_out, "m");
    steps.Add("L", "ln(D / d)", std::log(D_out / D_pipe));
    steps.Add_Condition("D \xC2\xB7 L \xE2\x89\xA5 N",
                        "s = " + Number(result->d_mm, locale) + " mm");
  }
  steps.Add_Shown("Ts",
                  object.kind == kSheet
                      ? "(T \xE2\x88\x92 Ta) / (\xCE\xB1 \xC2\xB7 s / \xCE\xBB + 1) + Ta"
                      : "(T \xE2\x88\x92 Ta) / (\xCE\xB1 \xC2\xB7 D \xC2\xB7 L / (2 \xC2\xB7 "
                        "\xCE\xBB) + 1) + Ta",
                  result->T_surf, shown[3], kCondensationColumns[3].decimals, kCelsius);
  return steps.Taken();
}

}  // namespace norvane
