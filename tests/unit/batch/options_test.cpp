#include "batch/options.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

std::variant<Options, UsageProblem> Read(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "norvane-batch");
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  return Read_Options(static_cast<int>(arguments.size()), argv.data());
}

Options Good(const std::vector<std::string>& arguments) {
  return std::get<Options>(Read(arguments));
}

std::string Problem(const std::vector<std::string>& arguments) {
  return std::get<UsageProblem>(Read(arguments)).words;
}

TEST(BatchOptions, AreUsuallyAHeatLossFromStandardInputToStandardOutput) {
  const Options options = Good({});
  EXPECT_EQ(options.mode, Mode::kHeatLoss);
  EXPECT_EQ(options.input, "");
  EXPECT_EQ(options.output, "");
  EXPECT_EQ(Format_Of(options), OutputFormat::kCsv);
  EXPECT_EQ(Good({"-"}).input, "");
}

TEST(BatchOptions, MayStandInAnyOrderAndBeShort) {
  const Options options = Good({"in.csv", "-m", "compare", "--threads=2", "-qo", "out.csv"});
  EXPECT_EQ(options.mode, Mode::kCompare);
  EXPECT_EQ(options.input, "in.csv");
  EXPECT_EQ(options.output, "out.csv");
  EXPECT_EQ(options.threads, 2);
  EXPECT_TRUE(options.quiet);
}

TEST(BatchOptions, TakeTheFormatFromTheNameOfTheOutput) {
  EXPECT_EQ(Format_Of(Good({"-o", "a.xlsx"})), OutputFormat::kWorkbook);
  EXPECT_EQ(Format_Of(Good({"-o", "a.jsonl"})), OutputFormat::kJsonLines);
  EXPECT_EQ(Format_Of(Good({"-o", "a.jsonl", "-f", "csv"})), OutputFormat::kCsv);
  EXPECT_EQ(Problem({"-f", "xlsx"}), "a workbook needs --output");
}

TEST(BatchOptions, TakeThicknessesWithTheirCosts) {
  const Options options = Good({"-t", "13=4.20,20", "--oil-price", "1.5", "--years", "15"});
  ASSERT_EQ(options.choices.size(), 2U);
  EXPECT_EQ(options.choices[0].thickness_mm, 13);
  EXPECT_EQ(options.choices[0].cost, 4.2);
  EXPECT_FALSE(options.choices[1].cost.has_value());
  EXPECT_EQ(options.energy->fuel, Fuel::kOil);
  EXPECT_EQ(options.years, 15);
}

TEST(BatchOptions, MayNameAFileOfPrices) {
  EXPECT_EQ(Good({"--prices", "prices.ini"}).prices, "prices.ini");
  EXPECT_EQ(Good({"-p", "a.ini"}).prices, "a.ini");
  EXPECT_EQ(Good({}).prices, "");
  EXPECT_EQ(Problem({"--prices", ""}), "--prices  isn't understood");
}

TEST(BatchOptions, SayWhatTheyDoNotUnderstand) {
  EXPECT_EQ(Problem({"--mode", "warm"}), "--mode warm isn't understood");
  EXPECT_EQ(Problem({"--what"}), "--what isn't understood");
  EXPECT_EQ(Problem({"--mode"}), "--mode needs a value");
  EXPECT_EQ(Problem({"-t", "13="}), "--thicknesses 13= isn't understood");
  EXPECT_EQ(Problem({"-t", "13=-1"}), "--thicknesses 13=-1 isn't understood");
  EXPECT_EQ(Problem({"-j", "0"}), "--threads 0 isn't understood");
  EXPECT_EQ(Problem({"-j", "65"}), "--threads 65 isn't understood");
  EXPECT_EQ(Problem({"--years", "0"}), "--years 0 isn't understood");
  EXPECT_EQ(Problem({"--gas-price", "1", "--oil-price", "1"}), "--oil-price 1 isn't understood");
  EXPECT_EQ(Problem({"a", "b"}), "there is more than one input");
}

TEST(BatchOptions, AreAllInTheHelp) {
  for (const char* name : {"--mode", "--output", "--template", "--list-columns", "--version"}) {
    EXPECT_NE(Help().find(name), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace norvane
