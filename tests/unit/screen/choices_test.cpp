#include "screen/choices.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "../support/test_program.h"
#include "calc/heat_loss.h"
#include "data/runtime_error.h"
#include "input_rows.h"

namespace norvane {
namespace {

const Locale kPoint{'.'};
const Locale kComma{','};

/// What the fields of a fresh program can be given.
class WhatFieldsCanBeGiven : public testing::Test {
 protected:
  WhatFieldsCanBeGiven() { program_.Start(); }

  Choices Of(const InputRow& row, std::int16_t kind = kSteelPipe) {
    return Choices_Of(warmt_, row, kind);
  }
  std::string Entered(const std::string& typed, const InputRow& row,
                      const Locale& locale = kPoint) {
    return Text_To_Enter(typed, Of(row), locale).value_or("nothing");
  }
  std::string Place(const std::string& typed, const InputRow& row) {
    const Choices choices = Of(row);
    return choices.entries[Place_Of(typed, choices, kPoint)].text;
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

std::vector<std::string> Texts_Of(const Choices& choices) {
  std::vector<std::string> texts;
  for (const Choice& entry : choices.entries) texts.push_back(entry.text);
  return texts;
}

TEST_F(WhatFieldsCanBeGiven, AscendsAndLiesWithinTheLimitsInEveryRow) {
  for (const bool heat_loss : {true, false}) {
    for (int index = 0; index <= InputRow::kLength; ++index) {
      if (index == (heat_loss ? 4 : 2)) continue;
      const Choices choices = Of({index, heat_loss});
      SCOPED_TRACE(index);
      ASSERT_FALSE(choices.entries.empty());
      EXPECT_GE(Val(choices.entries.front().text), choices.limits.least);
      EXPECT_LE(Val(choices.entries.back().text), choices.limits.most);
      for (std::size_t i = 1; i < choices.entries.size(); ++i) {
        EXPECT_LT(Val(choices.entries[i - 1].text), Val(choices.entries[i].text));
      }
    }
  }
}

TEST_F(WhatFieldsCanBeGiven, HasTheDiametersOfTheFamilyWithTheirInchNames) {
  const Choices copper = Of(kDiameter, kCopperTube);
  EXPECT_EQ(copper.entries.size(), 18U);
  EXPECT_EQ(copper.entries[5].text, "22");
  EXPECT_EQ(copper.entries[5].inch, "7/8");
  EXPECT_EQ(copper.entries[11].text, "57");
  EXPECT_EQ(copper.entries[11].inch, "");
  EXPECT_EQ(copper.limits.least, 6);
  EXPECT_EQ(copper.limits.most, 114);
  EXPECT_EQ(Of(kDiameter, kMetricPipe).limits.most, 108);
}

TEST_F(WhatFieldsCanBeGiven, HasNoDiameterOfASheet) {
  EXPECT_THROW(Of(kDiameter, kSheet), RuntimeError);
}

TEST_F(WhatFieldsCanBeGiven, HasTheThicknessStepsAndNoInsulationBeforeThem) {
  const Choices steel = Of(kThickness);
  EXPECT_EQ(Texts_Of(steel),
            (std::vector<std::string>{"0", "6", "9", "13", "15", "20", "25", "30"}));
  EXPECT_EQ(steel.entries[3].inch, "1/2");
  EXPECT_EQ(Of(kThickness, kSheet).entries[3].inch, "");
}

TEST_F(WhatFieldsCanBeGiven, HasTheTablesOfCondensationAndNothingElse) {
  const Choices temperatures = Of(kTableTemperature);
  EXPECT_TRUE(temperatures.entries_only);
  EXPECT_EQ(temperatures.entries.size(), 24U);
  EXPECT_EQ(temperatures.limits.least, -20);
  EXPECT_EQ(temperatures.limits.most, 50);
  const Choices humidities = Of(kHumidity);
  EXPECT_TRUE(humidities.entries_only);
  EXPECT_EQ(humidities.entries.front().text, "30");
  EXPECT_EQ(humidities.entries.back().text, "95");
  EXPECT_FALSE(Of(kMedium).entries_only);
}

TEST_F(WhatFieldsCanBeGiven, HasTheStepFromOneValueToTheNext) {
  EXPECT_EQ(Of(kMedium).step, 5);
  EXPECT_EQ(Of(kThickness).step, 1);
  EXPECT_EQ(Of(kDiameter).step, 1);
  EXPECT_EQ(Of(kLength).step, 1);
  EXPECT_EQ(Of(kTableTemperature).step, 2);  // the finest of the table
  EXPECT_EQ(Of(kHumidity).step, 5);
}

TEST_F(WhatFieldsCanBeGiven, TakesANumberThatComesAsSuch) {
  EXPECT_EQ(Text_To_Enter(12.5, Of(kThickness)), "12.5");
  EXPECT_EQ(Text_To_Enter(-3, Of(kThickness)), "0");
  EXPECT_EQ(Text_To_Enter(1e9, Of(kLength)), "10000");
  EXPECT_EQ(Text_To_Enter(62, Of(kHumidity)), "60");
}

TEST_F(WhatFieldsCanBeGiven, TakesNumbersAsAPersonWritesThem) {
  EXPECT_EQ(Entered("21", kDiameter), "21");
  EXPECT_EQ(Entered(" 21 ", kDiameter), "21");
  EXPECT_EQ(Entered("-5", kMedium), "-5");
  EXPECT_EQ(Entered("\xE2\x88\x92"
                    "5",
                    kMedium),
            "-5");
  EXPECT_EQ(Entered("12.5", kMedium), "12.5");
  EXPECT_EQ(Entered(".5", kLength), ".5");
  EXPECT_EQ(Entered("3.", kLength), "3.");
}

TEST_F(WhatFieldsCanBeGiven, TakesTheCommaOfALocaleForThePoint) {
  EXPECT_EQ(Entered("12,5", kMedium, kComma), "12.5");
  EXPECT_EQ(Entered("12.5", kMedium, kComma), "12.5");
  // Elsewhere a comma groups digits, and to take it for the point would change the number.
  EXPECT_EQ(Entered("1,000", kLength, kPoint), "nothing");
  EXPECT_EQ(Entered("1.000,5", kLength, kComma), "nothing");
}

TEST_F(WhatFieldsCanBeGiven, TakesNothingForWhatIsNoNumber) {
  for (const char* typed :
       {"", " ", "-", ".", "-.", "--5", "5-", "1e3", "x", "1.2.3", "12x", "+5"}) {
    EXPECT_EQ(Entered(typed, kMedium), "nothing") << typed;
  }
}

/// What comes of a text that is typed for a field.
struct Typed {
  const char* text;
  InputRow row;
  const char* becomes;
};

TEST_F(WhatFieldsCanBeGiven, CutsANumberToTheLimits) {
  const Typed kTyped[] = {{"115", kMedium, "115"},
                          {"115.1", kMedium, "115"},
                          {"-50", kMedium, "-50"},
                          {"-51", kMedium, "-50"},
                          {"5", kDiameter, "6"},
                          {"916", kDiameter, "915"},
                          {"-1", kLength, "0"},
                          {"10001", kLength, "10000"},
                          {"99999999999999999999", kMedium, "115"}};
  for (const auto& [text, row, becomes] : kTyped) EXPECT_EQ(Entered(text, row), becomes) << text;
}

TEST_F(WhatFieldsCanBeGiven, TakesTheFirstDigitsOfAnEntryWhereNoEntryIsAsLow) {
  EXPECT_EQ(Entered("8", kHumidity), "80");
  EXPECT_EQ(Place("8", kHumidity), "80");
  EXPECT_EQ(Entered("2", kHumidity), "30") << "none begins so";
  EXPECT_EQ(Entered("5", kTableTemperature), "4") << "5 lies among the entries, and is near";
}

TEST_F(WhatFieldsCanBeGiven, TakesTheNearestEntryWhereThereIsNothingElse) {
  const Typed kTyped[] = {{"28", kTableTemperature, "28"},
                          {"33", kTableTemperature, "35"},
                          {"-100", kTableTemperature, "-20"},
                          {"81", kHumidity, "80"},
                          {"100", kHumidity, "95"}};
  for (const auto& [text, row, becomes] : kTyped) EXPECT_EQ(Entered(text, row), becomes) << text;
}

TEST_F(WhatFieldsCanBeGiven, IsFoundByTheFirstLettersAndElseByNearness) {
  // Where the nearest entry is what is taken, as of the table, it is what is found.
  const Typed kTyped[] = {{"2", kDiameter, "21"},       {"27", kDiameter, "27"},
                          {"22", kDiameter, "21"},      {"220", kDiameter, "219"},
                          {"-", kMedium, "-40"},        {"", kMedium, "-40"},
                          {"3", kTableTemperature, "2"}};
  for (const auto& [text, row, found] : kTyped) EXPECT_EQ(Place(text, row), found) << text;
}

TEST_F(WhatFieldsCanBeGiven, IsReachedByClicksFromEveryEntryOfALockedField) {
  program_.Click(warmt_.cmdToolBarC);
  for (const InputRow& row : {kTableTemperature, kHumidity}) {
    const Choices choices = Of(row);
    for (const Choice& from : choices.entries) {
      for (const Choice& to : {choices.entries.front(), choices.entries.back(), from}) {
        for (const std::string& goal : {from.text, to.text}) {
          const int clicks = Clicks_To(warmt_, row, goal);
          for (int i = 0; i < std::abs(clicks); ++i) {
            clicks < 0 ? program_.Down(warmt_.SpinButton1(row.index))
                       : program_.Up(warmt_.SpinButton1(row.index));
          }
          EXPECT_EQ(warmt_.txtC(row.index).Text(), goal);
        }
      }
    }
  }
}

TEST_F(WhatFieldsCanBeGiven, NeedsNoClicksForTheEntryThatStandsThere) {
  program_.Click(warmt_.cmdToolBarC);
  EXPECT_EQ(Clicks_To(warmt_, kTableTemperature, warmt_.txtC(1).Text()), 0);
  EXPECT_EQ(Clicks_To(warmt_, kHumidity, "65"), 1);
  EXPECT_EQ(Clicks_To(warmt_, kHumidity, "30"), -6);
}

}  // namespace
}  // namespace norvane
