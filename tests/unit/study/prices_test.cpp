#include "study/prices.h"

#include <gtest/gtest.h>

#include <random>

#include "calc/heat_loss.h"
#include "data/utf8.h"

namespace norvane {
namespace {

Prices Some_Prices() {
  Prices prices;
  prices.project =
      "Kesselhaus \xC3\x84u\xC3\x9F"
      "ere Str. 5; [B]=1";
  prices.fuel = Fuel::kOil;
  prices.energy = {1.2, 0.95, std::nullopt};
  prices.years = 7.5;
  prices.of_pipe = {{13, 4.2}, {20, 5.5}};
  prices.of_sheet = {{50, 31}};
  return prices;
}

TEST(AnAmount, HasAPointOrAComma) {
  EXPECT_EQ(Read_Amount("1.20"), 1.2);
  EXPECT_EQ(Read_Amount(" 1,20 "), 1.2);
  EXPECT_EQ(Read_Amount("0"), 0.0);
  EXPECT_EQ(Read_Amount("-0"), 0.0);
  EXPECT_EQ(Read_Amount("1e3"), 1000.0);
}

TEST(AnAmount, IsNoOtherText) {
  for (const char* text : {"", " ", "1.234,50", "1,234.50", "-1", "4 EUR", "1 000", "nan", "inf",
                           "1e13", "1e999", "0x10", "1..2"}) {
    EXPECT_EQ(Read_Amount(text), std::nullopt) << text;
  }
}

TEST(AnAmount, IsWrittenWithTheDecimalsThatItHas) {
  EXPECT_EQ(Amount_Text(4.2, '.'), "4.2");
  EXPECT_EQ(Amount_Text(1234567.25, ','), "1234567,25");
  EXPECT_EQ(Amount_Text(0.000001, '.'), "0.000001");
  EXPECT_EQ(Amount_Text(0, '.'), "0");
}

TEST(Prices, AreReadAsAPersonWritesThem) {
  const Prices prices = Read_Prices(
      "\xEF\xBB\xBF[project]\nname = Boiler house\n"
      "[Energy]\nfuel=OIL\nGas=1,20\nOil=0.95\nElectricity=\n"
      "; a remark = 3\n"
      "[Pipe]\n13=4,20\n20 = 5.5\n"
      "[Sheet]\r\n50=31\r\n"
      "[Insulation]\nYears=7.5\n");
  EXPECT_EQ(prices.project, "Boiler house");
  EXPECT_EQ(prices.fuel, Fuel::kOil);
  EXPECT_EQ(prices.energy, Some_Prices().energy);
  EXPECT_EQ(prices.of_pipe, Some_Prices().of_pipe);
  EXPECT_EQ(prices.of_sheet, Some_Prices().of_sheet);
  EXPECT_EQ(prices.years, 7.5);
}

TEST(Prices, AreUnknownWithoutAFile) {
  EXPECT_EQ(Read_Prices(""), Prices());
  EXPECT_FALSE(Prices().Energy().has_value());
  EXPECT_EQ(Prices().years, 10);
}

TEST(Prices, AreUnknownWhereTheLineIsNotUnderstood) {
  const Prices prices = Read_Prices(
      "[Energy]\nFuel=coal\nGas=cheap\nOil=-1\nElectricity=1e99\n[Insulation]\nYears=0\n"
      "[Pipe]\n13=4\n13.0=9\nthick=1\n101=1\n-5=1\n20=?\n");
  Prices expected;
  expected.of_pipe = {{13, 4}};
  EXPECT_EQ(prices, expected);
}

TEST(Prices, OfTheFuelThatIsChosenCount) {
  Prices prices = Some_Prices();
  EXPECT_EQ(prices.Energy()->per_unit, 0.95);
  EXPECT_EQ(prices.Energy()->fuel, Fuel::kOil);
  prices.fuel = Fuel::kElectricity;
  EXPECT_FALSE(prices.Energy().has_value());
}

TEST(Prices, OfAMetreAreThoseOfPipes) {
  Prices prices = Some_Prices();
  for (const std::int16_t kind : {kSteelPipe, kCopperTube, kMetricPipe}) {
    EXPECT_EQ(&prices.Costs_Of(kind), &prices.of_pipe);
  }
  EXPECT_EQ(&prices.Costs_Of(kSheet), &prices.of_sheet);
}

TEST(Prices, AreReadAsTheyWereWritten) {
  EXPECT_EQ(Read_Prices(Write_Prices("", Some_Prices())), Some_Prices());
}

TEST(Prices, TakenAwayAreUnknown) {
  const std::string file = Write_Prices("", Some_Prices());
  EXPECT_EQ(Read_Prices(Write_Prices(file, Prices())), Prices());
}

TEST(Prices, LeaveTheOtherLinesOfTheFileAsTheyAre) {
  const std::string file =
      "; ours\n[Project]\nName=Old\nNumber=7\n[Energy]\nGas=1,20 "
      "\n[Pipe]\n13.0=4,20\n[Ours]\nx=y\n";
  Prices prices = Read_Prices(file);
  prices.project = "New";
  prices.of_pipe[20] = 5.5;
  EXPECT_EQ(Write_Prices(file, prices),
            "; ours\n[Project]\nName=New\nNumber=7\n[Energy]\nGas=1,20 \n"
            "[Pipe]\n13.0=4,20\n20=5.5\n[Ours]\nx=y\n");
}

/// Files of parts that belong into one, and of any bytes.
std::string Random_File(std::mt19937& random) {
  const char* const parts[] = {"[Pipe]", "[Sheet]", "[Energy]", "[Project]", "[Insulation]",
                               "\n",     "\r\n",    "=",        "13",        "13.0",
                               "50",     "Gas",     "Fuel",     "oil",       "Name",
                               "Years",  "1,5",     "-",        "\xFF",      "\xC3\x84",
                               "\0",     " ",       "7",        ";",         "\xEF\xBB\xBF"};
  std::string file;
  for (auto count = random() % 60; count > 0; --count) {
    if (random() % 8 == 0) {
      file += static_cast<char>(random() % 256);
    } else {
      file += parts[random() % std::size(parts)];
    }
  }
  return file;
}

TEST(Prices, OfAnyBytesStayWhenTheyAreWrittenAgain) {
  std::mt19937 random(5);
  for (int i = 0; i < 20000; ++i) {
    const std::string file = Random_File(random);
    const Prices prices = Read_Prices(file);
    ASSERT_TRUE(Is_Utf8(prices.project));
    if (!file.empty() && !file.starts_with("\xEF")) {
      ASSERT_EQ(Write_Prices(file, prices), file);
    }
    ASSERT_EQ(Read_Prices(Write_Prices(file, Some_Prices())), Some_Prices()) << file;
  }
}

}  // namespace
}  // namespace norvane
