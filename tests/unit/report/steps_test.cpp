#include "report/steps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "../study/objects.h"
#include "study/result.h"

namespace norvane {
namespace {

using Step = CalculationReport::Step;

/// Calculates what a formula with its numbers put in says, as a reviewer would.
class Reviewer {
 public:
  explicit Reviewer(std::string text) : text_(std::move(text)) {
    Replace("\xC2\xB7", "*");
    Replace("\xE2\x88\x92", "-");
    Replace(" ", "");
  }
  double Result() {
    const double value = Sum();
    EXPECT_EQ(at_, text_.size()) << text_;
    return value;
  }

 private:
  void Replace(const std::string& what, const std::string& by) {
    for (auto at = text_.find(what); at != text_.npos; at = text_.find(what)) {
      text_.replace(at, what.size(), by);
    }
  }
  bool Take(const std::string& what) {
    if (text_.compare(at_, what.size(), what) != 0) return false;
    at_ += what.size();
    return true;
  }
  double Sum() {
    double value = Product();
    for (;;) {
      if (Take("+")) {
        value += Product();
      } else if (Take("-")) {
        value -= Product();
      } else {
        return value;
      }
    }
  }
  double Product() {
    double value = Factor();
    for (;;) {
      if (Take("*")) {
        value *= Factor();
      } else if (Take("/")) {
        value /= Factor();
      } else {
        return value;
      }
    }
  }
  double Factor() {
    if (Take("-")) return -Factor();
    const bool logarithm = Take("ln");
    if (Take("(")) {
      const double value = Sum();
      EXPECT_TRUE(Take(")")) << text_;
      return logarithm ? std::log(value) : value;
    }
    const std::size_t end = text_.find_first_not_of("0123456789.", at_);
    const std::string number = text_.substr(at_, end - at_);
    EXPECT_FALSE(number.empty()) << text_ << " at " << at_;
    at_ += number.size();
    return Val(number);
  }

  std::string text_;
  std::size_t at_ = 0;
};

const Step& Step_Of(const std::vector<Step>& steps, const std::string& name) {
  for (const Step& step : steps) {
    if (step.formula.starts_with(name + " = ")) return step;
  }
  ADD_FAILURE() << "no step " << name;
  return steps.front();
}

TEST(AFormula, HasItsNumbersPutIn) {
  const std::vector<Symbol> symbols = {{"T", 80}, {"Ta", -5}, {"\xCE\xBB", 0.0391}};
  EXPECT_EQ(With_Numbers("(T \xE2\x88\x92 Ta) \xC2\xB7 \xCE\xBB / ln(2)", symbols, {','}),
            "(80 \xE2\x88\x92 (-5)) \xC2\xB7 0,0391 / ln(2)");
  EXPECT_EQ(With_Numbers("Tb + T", symbols, {}), "Tb + 80");
  EXPECT_EQ(With_Numbers("", symbols, {}), "");
}

TEST(AFormula, HasTheLastNumberOfAName) {
  EXPECT_EQ(With_Numbers("s", {{"s", 1}, {"s", 2}}, {}), "2");
}

// The first example of the guide.
TEST(Steps, OfAPipeLeadToItsResults) {
  const auto steps = Heat_Loss_Steps(Steel_Pipe(), {});
  ASSERT_EQ(steps.size(), 12U);
  EXPECT_EQ(steps[0].formula, "Tm = (T + Ta) / 2");
  EXPECT_EQ(steps[0].numbers, "(80 + 15) / 2");
  EXPECT_EQ(steps[0].result,
            "47.5 \xC2\xB0"
            "C");
  EXPECT_EQ(Step_Of(steps, "D").numbers, "0.021 + 2 \xC2\xB7 0.013");
  EXPECT_EQ(Step_Of(steps, "D").result, "0.047 m");
  EXPECT_EQ(Step_Of(steps, "Ts").result,
            "24.2 \xC2\xB0"
            "C");
  EXPECT_EQ(Step_Of(steps, "q0").result, "53.6 W/m");
  EXPECT_EQ(Step_Of(steps, "q").result, "17.0 W/m");
  EXPECT_EQ(Step_Of(steps, "p").result, "68 %");
  EXPECT_EQ(Step_Of(steps, "E").result, "26.34 kWh");
}

TEST(Steps, HaveTheUsersSigns) {
  EXPECT_EQ(Step_Of(Heat_Loss_Steps(Steel_Pipe(), {','}), "D").numbers, "0,021 + 2 \xC2\xB7 0,013");
}

TEST(Steps, OfASheetHaveNoDiameters) {
  const auto steps = Heat_Loss_Steps(Sheet(), {});
  EXPECT_EQ(steps.size(), 10U);
  EXPECT_EQ(Step_Of(steps, "q").result, "47.9 W/m\xC2\xB2");
}

TEST(Steps, OfWhatSavesNothingEndWithItsHeatFlow) {
  EXPECT_TRUE(Heat_Loss_Steps(Thin_Tube(), {}).back().formula.starts_with("q = "));
}

TEST(Steps, OfWhatCannotBeCalculatedAreNone) {
  Object object = Steel_Pipe();
  object.diameter_mm = 5;
  EXPECT_TRUE(Heat_Loss_Steps(object, {}).empty());
  object = Steel_Pipe();
  object.humidity_percent = 44;
  EXPECT_TRUE(Condensation_Steps(object, {}).empty());
}

/// Six digits of each number put in, and the last digit of the result.
void Expect_Followed(const Step& step) {
  if (step.formula.find("\xE2\x89\xA5") != std::string::npos) return;
  if (step.numbers.starts_with("f(")) return;
  const double followed = Reviewer(step.numbers).Result();
  const double said = Val(step.result);
  const std::size_t point = step.result.find('.');
  const std::size_t end = step.result.find_first_not_of("-0123456789.");
  const int decimals = point == std::string::npos
                           ? 0
                           : static_cast<int>(std::min(end, step.result.size()) - point) - 1;
  EXPECT_NEAR(followed, said, 0.51 * std::pow(10, -decimals) + 2e-4 * std::abs(said))
      << step.formula << ": " << step.numbers << " = " << step.result;
}

TEST(Steps, CanBeFollowedFromTheNumbersThatAreShown) {
  RandomObjects random(11);
  int followed = 0;
  for (int i = 0; i < 3000; ++i) {
    Object object = Whole(random.Draw());
    if (std::abs(object.medium_C - object.ambient_C) < 3) continue;
    for (const Step& step : Heat_Loss_Steps(object, {})) {
      Expect_Followed(step);
      ++followed;
    }
    if (HasFailure()) return;
  }
  EXPECT_GT(followed, 10000);
}

Object In_Damp_Air() {
  Object object = Steel_Pipe();
  object.medium_C = 6;
  object.ambient_C = 20;
  object.humidity_percent = 80;
  return object;
}

TEST(Steps, OfCondensationLeadToTheThickness) {
  const auto steps = Condensation_Steps(In_Damp_Air(), {});
  const auto result = std::get<CondensResult>(Condensation_Of(In_Damp_Air()));
  for (const Step& step : steps) Expect_Followed(step);
  EXPECT_EQ(steps[steps.size() - 2].result, "s = " + Format(result.d_mm, "0.0", {}) + " mm");
  // The condition holds as it is written, and a tenth of a millimetre before it didn't.
  const std::string condition = steps[steps.size() - 2].numbers;
  const std::size_t sign = condition.find("\xE2\x89\xA5");
  EXPECT_GE(Reviewer(condition.substr(0, sign)).Result(),
            Reviewer(condition.substr(sign + 3)).Result());
}

TEST(Steps, OfCondensationOnASheetLeadToTheThickness) {
  Object object = In_Damp_Air();
  object.kind = kSheet;
  const auto steps = Condensation_Steps(object, {});
  for (const Step& step : steps) Expect_Followed(step);
  const auto result = std::get<CondensResult>(Condensation_Of(object));
  EXPECT_EQ(Step_Of(steps, "s").result, Format(result.d_mm, "0.0", {}) + " mm");
}

}  // namespace
}  // namespace norvane
