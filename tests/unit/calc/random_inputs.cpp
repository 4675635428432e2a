#include "random_inputs.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "../data/dew_figures.h"
#include "reference.h"

namespace norvane {
namespace {

char Digit(int value) { return static_cast<char>('0' + value); }

/// `hundredths` as a number text of the locale, its thousands apart.
std::string Number_Text(int hundredths, const Locale& locale) {
  std::string text = std::to_string(hundredths / 100);
  if (text.size() > 3) text.insert(text.size() - 3, 1, locale.Group_Separator());
  const int rest = hundredths % 100;
  if (rest != 0) text.append({locale.decimal_separator, Digit(rest / 10), Digit(rest % 10)});
  return text;
}

/// Whether a coat of `mm` is enough, roughly: the left and the right side of the search's test.
bool Is_Enough(const CondensInput& input, double mm, const Locale& locale) {
  const double T_dew = static_cast<double>(reference::Dew_Point(input.T_amb, input.humidity));
  const double gap = static_cast<double>(input.T_amb) - T_dew;
  if (input.Sel_Size == kSheet || gap <= 0) return true;
  const double D_pipe = input.D_pipe == 0 ? 10.0 : static_cast<double>(input.D_pipe);
  const double D_out = D_pipe + 2 * mm / 1000;
  const double T_mean = (static_cast<double>(input.T_med) + static_cast<double>(input.T_amb)) / 2;
  const double lambda_T = T_mean * kLambdaSlope + static_cast<double>(input.Lambda);
  const double Alpha =
      static_cast<double>(Effective_Alpha(input.alpha_text, input.Sel_Size, locale));
  const double needed = (T_dew - static_cast<double>(input.T_med)) / gap * 2 * lambda_T / Alpha;
  return std::log(D_out / D_pipe) * D_out >= needed;
}

}  // namespace

std::uint64_t RandomInputs::Draw() {
  // The splitmix64 sequence.
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31);
}

int RandomInputs::From(int least, int most) {
  const auto count = static_cast<std::uint64_t>(most - least + 1);
  return least + static_cast<int>(Draw() % count);
}

double RandomInputs::Number(int least, int most) {
  switch (From(0, 3)) {
    case 0:
      return From(least * 10, most * 10) / 10.0;
    case 1:
      return From(least * 100, most * 100) / 100.0;
    default:
      return From(least, most);
  }
}

Locale RandomInputs::Draw_Locale() { return Locale{One_In(2) ? '.' : ','}; }

double RandomInputs::Diameter_Mm(int Sel_Size) {
  if (Sel_Size == kSheet || One_In(50)) return 0;
  const int largest[] = {915, 114, 108};
  return Number(6, largest[Sel_Size]);
}

float RandomInputs::Lambda() {
  if (One_In(2)) return One_In(2) ? 0.032F : 0.034F;
  return static_cast<float>(From(150, 600) / 10000.0);
}

std::string RandomInputs::Alpha_Text(const Locale& locale) {
  switch (From(0, 9)) {
    case 0:
      return "0";
    case 1:
      return Number_Text(From(1, 5000), locale).insert(0, 1, '-');
    case 2:
    case 3:
    case 4:
      return "";
    case 5:
      return Number_Text(From(1, 1000000), locale);
    case 6:
      return std::string{' ', Digit(From(1, 9)), Digit(From(0, 9)), 'E', '-', '1', ' '};
    default:
      return Number_Text(From(50, 5000), locale);
  }
}

HeatLossInput RandomInputs::Draw_Heat_Loss(const Locale& locale) {
  HeatLossInput input;
  input.raw_T_med = Number(-50, 115);
  input.raw_T_amb = One_In(20) ? input.raw_T_med : Number(-60, 110);
  input.T_med = To_Int16(input.raw_T_med);
  input.T_amb = To_Int16(input.raw_T_amb);
  input.Sel_Size = static_cast<std::int16_t>(From(0, 3));
  input.d_ins = Metres(One_In(20) ? 0 : Number(0, One_In(2) ? 100 : 10));
  input.D_pipe = Metres(Diameter_Mm(input.Sel_Size));
  input.alpha_text = Alpha_Text(locale);
  input.Lambda = Lambda();
  input.Hr_Day = static_cast<std::int16_t>(From(0, 30));
  input.Days = static_cast<std::int16_t>(From(0, 400));
  input.Mtrs = static_cast<std::int16_t>(From(-100, One_In(2) ? 100 : 10000));
  return input;
}

CondensInput RandomInputs::Draw_Any_Condensation(const Locale& locale) {
  CondensInput input;
  const std::vector<DewRow>& rows = Dew_Figures();
  const int row = From(0, static_cast<int>(rows.size()) - 1);
  const bool held = !One_In(40);
  input.T_amb =
      static_cast<float>(held ? rows[static_cast<std::size_t>(row)].T_amb : Number(-60, 110));
  input.humidity = static_cast<float>(One_In(40) ? Number(0, 100) : 30 + 5 * From(0, 13));
  // Mostly below the air, where there is something to calculate.
  const int warmest = One_In(10) ? 115 : static_cast<int>(std::max(-49.0F, input.T_amb));
  input.T_med = static_cast<float>(Number(-50, warmest));
  input.Sel_Size = static_cast<std::int16_t>(From(0, 3));
  input.D_pipe = Metres(Diameter_Mm(input.Sel_Size));
  input.alpha_text = Alpha_Text(locale);
  input.Lambda = Lambda();
  return input;
}

CondensInput RandomInputs::Draw_Condensation(const Locale& locale) {
  const double limit_mm = One_In(100) ? 400 : One_In(4) ? 120 : 12;
  while (true) {
    const CondensInput input = Draw_Any_Condensation(locale);
    if (Is_Enough(input, limit_mm, locale)) return input;
  }
}

}  // namespace norvane
