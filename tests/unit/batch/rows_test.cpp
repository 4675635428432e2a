#include "batch/rows.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../support/test_folder.h"
#include "batch/problem.h"
#include "batch_rows.h"

namespace norvane {
namespace {

constexpr const char* kHeader = "kind,medium_C,ambient_C,thickness_mm,diameter_mm";
constexpr const char* kSteel = "steel,80,15,13,21";
constexpr const char* kSteelResults = "0.039,12.5,24.2,53.6,17.0,68,36.58,2.72,2.16,26.34,";

std::string Csv(const std::string& rows, const std::string& header = kHeader) {
  return Calculated({}, header, rows);
}

Options Json() {
  Options options;
  options.format = OutputFormat::kJsonLines;
  return options;
}

Options Of_Mode(Mode mode) {
  Options options;
  options.mode = mode;
  return options;
}

std::string Header_Problem(const std::string& header, const Options& options = {}) {
  try {
    const Job job(options, header, 3);
  } catch (const BatchProblem& problem) {
    return problem.what();
  }
  return "";
}

TEST(BatchRow, IsPassedOnWithItsResultsBehindIt) {
  EXPECT_EQ(Csv(std::string(kSteel) + "\n"), std::string(kSteel) + "," + kSteelResults + "\n");
}

TEST(BatchRow, MayEndWithACarriageReturnOrWithTheFile) {
  const std::string expected = std::string(kSteel) + "," + kSteelResults + "\n";
  EXPECT_EQ(Csv(std::string(kSteel) + "\r\n\r\n\n" + kSteel), expected + expected);
}

TEST(BatchRow, KeepsColumnsThatAreNotRead) {
  EXPECT_EQ(Csv("\"A, 1\",steel,80,15,13,21,x\n", "drawing," + std::string(kHeader) + ",note"),
            "\"A, 1\",steel,80,15,13,21,x," + std::string(kSteelResults) + "\n");
}

TEST(BatchRow, GetsNewResultsInThePlaceOfThoseOfARunBefore) {
  const std::string header = "kind,gas_m3,medium_C,ambient_C,remark,thickness_mm,diameter_mm";
  EXPECT_EQ(Csv("steel,99,80,15,old,13,21\n", header),
            std::string(kSteel) + "," + kSteelResults + "\n");
}

TEST(BatchRow, WithoutASavingSaysSo) {
  EXPECT_EQ(Csv("copper,80,15,1,6\n"),
            "copper,80,15,1,6,0.039,10.0,65.2,12.3,12.6,,,,,,no saving\n");
}

TEST(BatchRow, ThatCannotBeCalculatedSaysWhyAndTheRunGoesOn) {
  Report report;
  const std::string rows = "steel,180,15,13,21\n" + std::string(kSteel) + "\nsteel,x,15,13,21\n";
  EXPECT_EQ(Calculated({}, kHeader, rows, &report),
            "steel,180,15,13,21,,,,,,,,,,,medium_C is above 115\n" + std::string(kSteel) + "," +
                kSteelResults + "\n" + "steel,x,15,13,21,,,,,,,,,,,medium_C is no number\n");
  EXPECT_EQ(report.sums.rows, 3);
  EXPECT_EQ(report.sums.without_result, 2);
  EXPECT_EQ(report.first_bad_line, 2U);
}

TEST(BatchRow, OfAnotherLengthIsWrittenInTheColumnsOfTheHeader) {
  EXPECT_EQ(Csv("steel,80\n"),
            "steel,80,,,,,,,,,,,,,,the row has not as many fields as the header\n");
  EXPECT_EQ(Csv("steel,80,15,13,21,7\n"),
            "steel,80,15,13,21,,,,,,,,,,,the row has not as many fields as the header\n");
}

TEST(BatchRow, WithBadBytesIsMended) {
  EXPECT_EQ(Csv("\xE9t\xE9,steel,80,15,13,21\n", "name," + std::string(kHeader)),
            "\xEF\xBF\xBDt\xEF\xBF\xBD,steel,80,15,13,21,,,,,,,,,,,"
            "the row has bytes that are no UTF-8\n");
}

TEST(BatchRow, WithAnOpenQuoteIsClosed) {
  EXPECT_EQ(Csv("steel,80,15,13,\"21,x\n"),
            "steel,80,15,13,\"21,x\",,,,,,,,,,,a quote is left open\n");
}

TEST(BatchRow, OfSemicolonsReadsAndWritesCommas) {
  EXPECT_EQ(Csv("steel;80;15;13,0;21\n", "kind;medium_C;ambient_C;thickness_mm;diameter_mm"),
            "steel;80;15;13,0;21;0,039;12,5;24,2;53,6;17,0;68;36,58;2,72;2,16;26,34;\n");
}

TEST(BatchRow, TakesTheSignsThatAreAskedFor) {
  Options options;
  options.decimal = '.';
  EXPECT_EQ(Calculated(options, "kind;medium_C;ambient_C;thickness_mm;diameter_mm",
                       "steel;80;15;13.0;21\n"),
            "steel;80;15;13.0;21;0.039;12.5;24.2;53.6;17.0;68;36.58;2.72;2.16;26.34;\n");
}

TEST(BatchRow, IsAnObjectOfJson) {
  EXPECT_EQ(
      Calculated(Json(), "name," + std::string(kHeader), "\"a \"\"b\"\"\\\",steel,80,15,+13.,21\n"),
      "{\"name\":\"a \\\"b\\\"\\\\\",\"kind\":\"steel\",\"medium_C\":80,\"ambient_C\":15,"
      "\"thickness_mm\":13,\"diameter_mm\":21,\"lambda_mean_W_mK\":0.039,"
      "\"alpha_used_W_m2K\":12.5,\"surface_C\":24.2,\"bare_W_per_m_or_m2\":53.6,"
      "\"insulated_W_per_m_or_m2\":17.0,\"saving_percent\":68,\"saving_W_per_m_or_m2\":36.58,"
      "\"gas_m3\":2.72,\"oil_l\":2.16,\"electricity_kWh\":26.34}\n");
}

TEST(BatchRow, LeavesOutOfJsonWhatIsEmpty) {
  EXPECT_EQ(Calculated(Json(), kHeader, "sheet,x,15,13,\n"),
            "{\"kind\":\"sheet\",\"medium_C\":\"x\",\"ambient_C\":15,\"thickness_mm\":13,"
            "\"remark\":\"medium_C is no number\"}\n");
}

TEST(BatchRow, OfCondensationHasTheThicknessInMillimetresAndInch) {
  const std::string header = "kind,medium_C,ambient_C,humidity_percent,diameter_mm";
  EXPECT_EQ(Calculated(Of_Mode(Mode::kCondensation), header, "steel,10,24,60,10\n"),
            "steel,10,24,60,10,1.7,0.035,12.5,15.8,,\n");
  // 12.8 mm count as 13, which is 1/2 inch.
  EXPECT_EQ(Calculated(Of_Mode(Mode::kCondensation), header, "steel,-34,24,60,60\n"),
            "steel,-34,24,60,60,12.8,0.031,12.5,15.8,1/2,\n");
}

TEST(BatchRow, OfAComparisonIsARowForEachThickness) {
  Options options = Of_Mode(Mode::kCompare);
  options.choices = {{13, 4.0}, {12.5, {}}, {101, {}}};
  options.energy = EnergyPrice{Fuel::kGas, 1.2};
  EXPECT_EQ(
      Calculated(options, "kind,medium_C,ambient_C,diameter_mm", "steel,80,15,21\n"),
      "steel,80,15,21,13,0.039,12.5,24.2,53.6,17.0,68,36.58,2.72,2.16,26.34,3.26,1.2,1.92,yes,\n"
      "steel,80,15,21,12.5,0.039,12.5,24.6,53.6,17.4,68,36.24,2.69,2.14,26.09,3.23,,,,\n"
      "steel,80,15,21,101,,,,,,,,,,,,,,,thickness_mm is above 100\n");
}

/// A comparison by the prices of a file.
class BatchPrices : public testing::Test {
 protected:
  static constexpr const char* kColumns = "kind,medium_C,ambient_C,diameter_mm";

  Options By(const std::string& file) {
    folder.Write("prices.ini", file);
    Options options = Of_Mode(Mode::kCompare);
    options.prices = (folder / "prices.ini").string();
    return options;
  }
  std::string Problem(const Options& options) {
    try {
      Calculated(options, kColumns, "");
    } catch (const BatchProblem& problem) {
      return problem.what();
    }
    return "";
  }

  TestFolder folder;
};

TEST_F(BatchPrices, OfAFileAreThoseOfTheOptions) {
  Options by_file =
      By("[Energy]\r\nFuel=Oil\r\nGas=9\r\nOil=1,5\r\n[Insulation]\r\nYears=15\r\n"
         "[Pipe]\r\n13=4.2\r\n20=5.5\r\n[Sheet]\r\n13=30\r\n");
  by_file.choices = {{13, {}}, {20, {}}, {25, {}}};
  Options by_options = Of_Mode(Mode::kCompare);
  by_options.choices = {{13, 4.2}, {20, 5.5}, {25, {}}};
  by_options.energy = EnergyPrice{Fuel::kOil, 1.5};
  by_options.years = 15;
  const std::string pipe = "steel,80,15,21\n";
  EXPECT_EQ(Calculated(by_file, kColumns, pipe), Calculated(by_options, kColumns, pipe));
  by_options.choices = {{13, 30.0}, {20, {}}, {25, {}}};
  const std::string sheet = "sheet,80,15,\n";
  EXPECT_EQ(Calculated(by_file, kColumns, sheet), Calculated(by_options, kColumns, sheet));
}

TEST_F(BatchPrices, OfAFileCountWhereNoOptionSaysOtherwise) {
  Options options = By("[Energy]\nGas=9\n[Insulation]\nYears=15\n[Pipe]\n13=40\n");
  options.choices = {{13, 4.0}};
  options.energy = EnergyPrice{Fuel::kGas, 1.2};
  options.years = 10;
  EXPECT_EQ(
      Calculated(options, kColumns, "steel,80,15,21\n"),
      "steel,80,15,21,13,0.039,12.5,24.2,53.6,17.0,68,36.58,2.72,2.16,26.34,3.26,1.2,1.92,yes,\n");
}

TEST_F(BatchPrices, OfOtherThicknessesAreComparedToo) {
  const std::string rows =
      Calculated(By("[Energy]\nGas=1.2\n[Pipe]\n35=7\n"), kColumns, "steel,80,15,21\n");
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 15);
  EXPECT_NE(rows.find("21,30,"), std::string::npos);
  EXPECT_NE(rows.find("21,35,"), std::string::npos);
}

TEST_F(BatchPrices, BeyondWhatCanBeShownAreLeftOut) {
  const std::string rows =
      Calculated(By("[Energy]\nElectricity=1e12\nFuel=Electricity\n"),
                 std::string(kColumns) + ",length_m", "steel,80,15,21,10000\n");
  EXPECT_NE(rows.find("steel,80,15,21,10000,13,"), std::string::npos);
  EXPECT_TRUE(rows.ends_with(",,,,\n")) << rows;
}

TEST_F(BatchPrices, ThatAreNotThereAreAProblem) {
  Options options = By("");
  EXPECT_EQ(Problem(options), options.prices + ": there is no price in it");
  options.prices = (folder / "other.ini").string();
  EXPECT_EQ(Problem(options), options.prices + ": the prices can't be read");
  options.prices = folder.Path().string();
  EXPECT_EQ(Problem(options), options.prices + ": the prices can't be read");
}

TEST(BatchHeader, WithoutItsColumnsIsAProblemOfItsLine) {
  EXPECT_EQ(Header_Problem("kind,medium_C"),
            "line 3: these columns are missing: ambient_C, thickness_mm, diameter_mm");
  EXPECT_EQ(Header_Problem("kind,kind"), "line 3: the column kind stands there twice");
  EXPECT_EQ(Header_Problem("k\xFF"), "line 3: the header isn't UTF-8");
  EXPECT_EQ(Header_Problem("kind,medium_C,ambient_C,diameter_mm", Of_Mode(Mode::kCompare)), "");
}

TEST(BatchHeader, CannotHaveTheDecimalSignBetweenItsColumns) {
  Options options;
  options.decimal = ',';
  EXPECT_EQ(Header_Problem(kHeader, options),
            "the comma can't be both the decimal sign and between the columns");
}

}  // namespace
}  // namespace norvane
