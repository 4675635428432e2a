#include "screen/input_notes.h"

#include <algorithm>

#include "calc/conversions.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

std::string_view Without_Leading_Zeros(std::string_view text) {
  const auto zeros = std::min(text.find_first_not_of('0'), text.size());
  return text.substr(zeros);
}

}  // namespace

GivenText What_Came_Of(std::string_view given, std::string_view held, const Limits& limits) {
  if (Without_Leading_Zeros(given) == Without_Leading_Zeros(held)) return GivenText::kTaken;
  const double number = Val(given);
  const double limit = std::clamp(number, limits.least, limits.most);
  return limit != number && Val(held) == limit ? GivenText::kCut : GivenText::kLost;
}

bool Is_Fahrenheit_Stale(const Module1& module1, Warmt& warmt, int index) {
  const TextField& field = warmt.Calc_Mode == "T" ? warmt.txtT(index) : warmt.txtC(index);
  return warmt.Text2(index).Caption() != Fahr(To_Int16(Val(field.Text())), module1.Locale());
}

}  // namespace norvane
