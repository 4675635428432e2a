#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "../data/error_of.h"
#include "calc/condensation.h"
#include "calc/heat_loss.h"
#include "random_inputs.h"
#include "reference.h"

// Both calculations against a second, slower way to the same values. The reference works in
// extended precision, the program in double, so that a value which lies within their tiny
// difference of a rounding border may come out as the neighbouring single. Nothing else may differ,
// and this must be rare.

namespace norvane {
namespace {

constexpr int kInputs = 1'000'000;
constexpr int kRare = 10'000;  ///< values to one that may be adjacent

std::uint64_t Seed() {
  const char* chosen = std::getenv("NORVANE_TEST_SEED");
  return chosen ? std::strtoull(chosen, nullptr, 10) : 20'240'501;
}

std::ostream& operator<<(std::ostream& out, const HeatLossInput& input) {
  return out << "medium " << input.raw_T_med << ", air " << input.raw_T_amb << ", thickness "
             << input.d_ins << ", diameter " << input.D_pipe << ", alpha '" << input.alpha_text
             << "', kind " << input.Sel_Size << ", lambda " << input.Lambda << ", hours "
             << input.Hr_Day << ", days " << input.Days << ", metres " << input.Mtrs;
}

std::ostream& operator<<(std::ostream& out, const CondensInput& input) {
  return out << "medium " << input.T_med << ", air " << input.T_amb << ", humidity "
             << input.humidity << ", diameter " << input.D_pipe << ", alpha '" << input.alpha_text
             << "', kind " << input.Sel_Size << ", lambda " << input.Lambda;
}

template <typename Input>
std::string Described(const Input& input, const Locale& locale) {
  std::ostringstream out;
  out.precision(9);
  out << input << ", locale '" << locale.decimal_separator << "'";
  return out.str();
}

/// The number of the reference's failure, 0 when it ends well.
template <typename Call>
int Failure_Of(Call&& call) {
  try {
    call();
  } catch (const reference::Failure& failure) {
    return failure.number;
  }
  return 0;
}

/// Compares values and counts those that aren't the same but may be.
class Comparison {
 public:
  ~Comparison() {
    std::cout << "seed " << Seed() << ": " << compared_ << " values, " << adjacent_
              << " of them adjacent\n";
    EXPECT_LT(adjacent_ * kRare, compared_);
  }

  /// True for the same single, and for its neighbour, which is counted.
  bool Agree(float program, float reference) {
    ++compared_;
    if (program == reference) return true;
    ++adjacent_;
    return std::nextafter(program, reference) == reference;
  }

  /// A rounded percentage: the other integer is accepted at a tie alone.
  bool Agree(std::int16_t program, long double reference) {
    ++compared_;
    if (std::rint(reference) == program) return true;
    ++adjacent_;
    return std::fabs(std::fabs(reference - program) - 0.5L) < 1e-9L;
  }

  /// An amount in double: no more apart than the roundings of its four steps.
  bool Agree(double program, long double reference) {
    ++compared_;
    if (program == static_cast<double>(reference)) return true;
    return std::fabs(program - reference) <= 4 * 0x1p-53L * std::fabs(reference);
  }

  /// What the screen shows of an amount.
  bool Shown_Alike(double program, long double reference, const Locale& locale) {
    ++compared_;
    const double rounded = static_cast<double>(reference);
    if (program == rounded) return true;
    if (Format(program, "####0.00", locale) == Format(rounded, "####0.00", locale)) return true;
    ++adjacent_;
    return std::fabs(program - rounded) < 1e-9 * std::fabs(rounded);
  }

  /// A search that stops a step of 0.1 mm earlier or later, which only a tie may cause.
  void Count_Tie() { ++adjacent_; }

 private:
  std::int64_t compared_ = 0;
  std::int64_t adjacent_ = 0;
};

void Compare_Savings(const HeatLossInput& input, const HeatLossResult& program,
                     const Locale& locale, Comparison& comparison) {
  // The program's own flows go in, so that a neighbouring single among them isn't met again here.
  const auto expected = reference::Savings_Of(input, program.Q_bare, program.Q_ins);
  ASSERT_EQ(program.savings.has_value(), expected.has_value());
  if (!expected) return;
  const Savings& savings = *program.savings;
  EXPECT_TRUE(comparison.Agree(savings.Saving_Pct, expected->percent));
  EXPECT_TRUE(comparison.Agree(savings.difference, expected->difference));
  EXPECT_TRUE(comparison.Agree(savings.gas, expected->gas));
  EXPECT_TRUE(comparison.Agree(savings.oil, expected->oil));
  EXPECT_TRUE(comparison.Shown_Alike(savings.gas, expected->gas, locale));
  EXPECT_TRUE(comparison.Shown_Alike(savings.oil, expected->oil, locale));
  EXPECT_TRUE(comparison.Agree(savings.electricity, expected->electricity));
}

void Compare(const HeatLossInput& input, const Locale& locale, Comparison& comparison) {
  HeatLossResult program;
  reference::Flow expected;
  const int error = Error_Of([&] { program = Heat_Loss(input, locale); });
  const int failure = Failure_Of([&] { expected = reference::Heat_Flow(input, locale); });
  ASSERT_EQ(error, failure);
  if (error != 0) return;
  EXPECT_EQ(program.Alpha, expected.Alpha);
  EXPECT_TRUE(comparison.Agree(program.lambda_T, expected.lambda_T));
  // All the rest goes on from this single and may differ by more where it is the neighbour.
  if (program.lambda_T != expected.lambda_T) return;
  EXPECT_TRUE(comparison.Agree(program.T_surf, expected.T_surf));
  EXPECT_TRUE(comparison.Agree(program.Q_bare, expected.Q_bare));
  EXPECT_TRUE(comparison.Agree(program.Q_ins, expected.Q_ins));
  Compare_Savings(input, program, locale, comparison);
}

void Compare(const CondensInput& input, const Locale& locale, Comparison& comparison) {
  CondensResult program;
  reference::Thickness expected;
  const int error = Error_Of([&] { program = Condensation(input, locale); });
  const int failure = Failure_Of([&] { expected = reference::Least_Thickness(input, locale); });
  ASSERT_EQ(error, failure);
  if (error != 0) return;
  EXPECT_EQ(program.Alpha, expected.Alpha);
  EXPECT_TRUE(comparison.Agree(program.lambda_T, expected.lambda_T));
  if (program.lambda_T != expected.lambda_T) return;
  if (program.passes != expected.passes) {
    EXPECT_EQ(std::abs(program.passes - expected.passes), 1);
    comparison.Count_Tie();
    return;
  }
  EXPECT_TRUE(comparison.Agree(program.d_mm, expected.d_mm));
  EXPECT_TRUE(comparison.Agree(program.T_surf, expected.T_surf));
}

TEST(Comparison, OfAMillionHeatLosses) {
  RandomInputs inputs(Seed());
  Comparison comparison;
  for (int count = 0; count < kInputs; ++count) {
    const Locale locale = inputs.Draw_Locale();
    const HeatLossInput input = inputs.Draw_Heat_Loss(locale);
    Compare(input, locale, comparison);
    if (::testing::Test::HasFailure()) FAIL() << Described(input, locale);
  }
}

TEST(Comparison, OfAMillionCondensations) {
  RandomInputs inputs(Seed());
  Comparison comparison;
  for (int count = 0; count < kInputs; ++count) {
    const Locale locale = inputs.Draw_Locale();
    const CondensInput input = inputs.Draw_Condensation(locale);
    Compare(input, locale, comparison);
    if (::testing::Test::HasFailure()) FAIL() << Described(input, locale);
  }
}

TEST(Comparison, OfCoatsThatPassTheThickest) {
  RandomInputs inputs(Seed());
  Comparison comparison;
  int overflows = 0;
  while (overflows < 20) {
    const Locale locale = inputs.Draw_Locale();
    CondensInput input = inputs.Draw_Condensation(locale);
    input.alpha_text = locale.decimal_separator == '.' ? "0.0002" : "0,0002";
    Compare(input, locale, comparison);
    if (::testing::Test::HasFailure()) FAIL() << Described(input, locale);
    if (Error_Of([&] { Condensation(input, locale); }) == 6) ++overflows;
  }
}

}  // namespace
}  // namespace norvane
