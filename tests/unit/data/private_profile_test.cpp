#include "data/private_profile.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>

namespace norvane {
namespace {

std::optional<std::string> Get(const std::string& file) {
  return Get_Private_Profile_String(file, "Setting", "Days");
}

std::string Set(const std::string& file) {
  return Write_Private_Profile_String(file, "Setting", "Days", " 7");
}

TEST(AValue, IsThatOfItsKeyInItsSection) {
  EXPECT_EQ(Get("[Init]\r\nDays=1\r\n[Setting]\r\nHr_Day=2\r\nDays=3\r\n"), "3");
}

TEST(AValue, IsMissingWithoutItsSectionOrItsKey) {
  EXPECT_EQ(Get(""), std::nullopt);
  EXPECT_EQ(Get("Days=3\r\n"), std::nullopt);
  EXPECT_EQ(Get("[Init]\r\nDays=3\r\n"), std::nullopt);
  EXPECT_EQ(Get("[Setting]\r\nDay=3\r\nDaysX=3\r\nDays\r\n"), std::nullopt);
  EXPECT_EQ(Get("[Setting]\r\n[Init]\r\nDays=3\r\n"), std::nullopt);
}

TEST(AValue, IsFoundWithoutRegardToTheCaseOfTheNames) {
  EXPECT_EQ(Get("[SETTING]\r\ndays=3\r\n"), "3");
  EXPECT_EQ(Get("[sEtTiNg]\r\nDAYS=3\r\n"), "3");
}

TEST(AValue, LosesBlanksAndTabsAtItsEndsAlone) {
  EXPECT_EQ(Get("[Setting]\r\nDays= \t 3 \t 4\t \r\n"), "3 \t 4");
  EXPECT_EQ(Get("[Setting]\r\nDays=\v3\xA0\r\n"), "\v3\xA0");
}

TEST(AValue, MayBeEmpty) {
  EXPECT_EQ(Get("[Setting]\r\nDays=\r\nHr_Day=3\r\n"), "");
  EXPECT_EQ(Get("[Setting]\r\nDays= \t\r\n"), "");
  EXPECT_EQ(Get("[Setting]\r\nDays="), "");
}

TEST(AValue, KeepsItsQuotes) {
  EXPECT_EQ(Get("[Setting]\r\nDays=\"3\"\r\n"), "\"3\"");
  EXPECT_EQ(Get("[Setting]\r\nDays='3'\r\n"), "'3'");
}

TEST(AValue, MayHoldEqualsSignsAndBrackets) {
  EXPECT_EQ(Get("[Setting]\r\nDays=a=b=[c]\r\n"), "a=b=[c]");
}

TEST(AValue, IsFoundWithBlanksAroundTheNames) {
  EXPECT_EQ(Get("  [Setting]  \r\n\t Days \t=3\r\n"), "3");
}

TEST(AValue, IsThatOfTheFirstKeyInTheFirstSectionOfTheName) {
  EXPECT_EQ(Get("[Setting]\r\nDays=1\r\ndays=2\r\n"), "1");
  EXPECT_EQ(Get("[Setting]\r\nDays=1\r\n[Init]\r\n[Setting]\r\nDays=2\r\n"), "1");
  EXPECT_EQ(Get("[Setting]\r\nHr_Day=1\r\n[setting]\r\nDays=2\r\n"), std::nullopt);
}

TEST(AValue, IsFoundWhateverEndsTheLines) {
  EXPECT_EQ(Get("[Setting]\nHr_Day=1\nDays=3\n"), "3");
  EXPECT_EQ(Get("[Setting]\rHr_Day=1\rDays=3\r"), "3");
  EXPECT_EQ(Get("[Setting]\r\nHr_Day=1\rDays=3"), "3");
}

TEST(AnExistingKey, KeepsItsSpellingAndItsPlace) {
  EXPECT_EQ(Set("[SETTING]\r\na=1\r\ndAYS=3\r\nb=2\r\n"), "[SETTING]\r\na=1\r\ndAYS= 7\r\nb=2\r\n");
  EXPECT_EQ(Set("[Setting]\r\n  days\t=  3  \r\n"), "[Setting]\r\n  days\t= 7\r\n");
}

TEST(AnExistingKey, IsTheFirstOfItsNameInTheFirstSection) {
  EXPECT_EQ(Set("[Setting]\r\nDays=1\r\nDays=2\r\n[Setting]\r\nDays=3\r\n"),
            "[Setting]\r\nDays= 7\r\nDays=2\r\n[Setting]\r\nDays=3\r\n");
}

TEST(AnExistingKey, AtTheEndOfAFileWithoutALastLineEndGetsNone) {
  EXPECT_EQ(Set("[Setting]\r\nDays=3"), "[Setting]\r\nDays= 7");
  EXPECT_EQ(Set("[Setting]\r\nDays="), "[Setting]\r\nDays= 7");
}

TEST(AnExistingKey, LosesAnEqualsSignInItsOldValue) {
  EXPECT_EQ(Set("[Setting]\r\nDays=a=b\r\n"), "[Setting]\r\nDays= 7\r\n");
}

TEST(AnExistingKey, MayTakeAnEmptyValue) {
  EXPECT_EQ(Write_Private_Profile_String("[Setting]\r\nDays=3\r\n", "Setting", "Days", ""),
            "[Setting]\r\nDays=\r\n");
}

TEST(ANewKey, GoesBehindTheLastLineOfItsSection) {
  EXPECT_EQ(Set("[Setting]\r\na=1\r\n[Init]\r\nb=2\r\n"),
            "[Setting]\r\na=1\r\nDays= 7\r\n[Init]\r\nb=2\r\n");
  EXPECT_EQ(Set("[Setting]\r\n; a remark\r\n[Init]\r\n"),
            "[Setting]\r\n; a remark\r\nDays= 7\r\n[Init]\r\n");
}

TEST(ANewKey, LeavesTheEmptyLinesBetweenTheSectionsBelowIt) {
  EXPECT_EQ(Set("[Setting]\r\na=1\r\n\r\n \t\r\n[Init]\r\n"),
            "[Setting]\r\na=1\r\nDays= 7\r\n\r\n \t\r\n[Init]\r\n");
}

TEST(ANewKey, GoesBelowTheNameOfASectionWithoutLines) {
  EXPECT_EQ(Set("[Setting]\r\n\r\n[Init]\r\n"), "[Setting]\r\nDays= 7\r\n\r\n[Init]\r\n");
}

TEST(ANewKey, GoesToTheFirstSectionOfTheName) {
  EXPECT_EQ(Set("[setting]\r\na=1\r\n[Setting]\r\nDays=3\r\n"),
            "[setting]\r\na=1\r\nDays= 7\r\n[Setting]\r\nDays=3\r\n");
}

TEST(ANewKey, EndsTheLineBeforeItWhereTheFileDidNot) {
  EXPECT_EQ(Set("[Init]\r\n[Setting]\r\na=1"), "[Init]\r\n[Setting]\r\na=1\r\nDays= 7\r\n");
  EXPECT_EQ(Set("[Setting]"), "[Setting]\r\nDays= 7\r\n");
}

TEST(ANewSection, GoesToTheEndOfTheFile) {
  EXPECT_EQ(Set("[Init]\r\nA1= 17\r\n"), "[Init]\r\nA1= 17\r\n[Setting]\r\nDays= 7\r\n");
  EXPECT_EQ(Set("[Init]\r\nA1= 17"), "[Init]\r\nA1= 17\r\n[Setting]\r\nDays= 7\r\n");
}

TEST(ANewSection, BeginsANewFile) { EXPECT_EQ(Set(""), "[Setting]\r\nDays= 7\r\n"); }

TEST(ANewSection, IsMadeForAKeyThatStandsInFrontOfAllSections) {
  EXPECT_EQ(Set("Days=3\r\n"), "Days=3\r\n[Setting]\r\nDays= 7\r\n");
}

TEST(NewLines, EndAsTheFileDoes) {
  EXPECT_EQ(Set("[Setting]\na=1\n"), "[Setting]\na=1\nDays= 7\n");
  EXPECT_EQ(Set("[Setting]\ra=1\r"), "[Setting]\ra=1\rDays= 7\r");
  EXPECT_EQ(Set("[Init]\na=1\n"), "[Init]\na=1\n[Setting]\nDays= 7\n");
  EXPECT_EQ(Set("[Init]\ra=1"), "[Init]\ra=1\r[Setting]\rDays= 7\r");
}

TEST(AWrite, LeavesEveryOtherByteAlone) {
  std::string odd;
  for (int byte = 0; byte < 256; ++byte) odd += static_cast<char>(byte);
  odd += "\n\r\r\n\xEF\xBB\xBF no key [ \x1A ] = \r\n";
  const std::string before = odd + "[Setting]\r\n" + odd;
  const std::string behind = odd + "[Init]\r\n" + odd;
  EXPECT_EQ(Set(before + "Days=3\r\n" + behind), before + "Days= 7\r\n" + behind);
}

TEST(AWrite, IsWhatALaterReadFinds) {
  const std::string pieces[] = {
      "[Setting]", "[setting]", "[Init]", "Days=3", "days", " = ", "\r\n",
      "\n",        "\r",        "[",      "]",      " ",    "\t",  {"\0\xFF\x80", 3}};
  std::mt19937 random(7);
  for (int round = 0; round < 3000; ++round) {
    std::string file;
    for (auto n = random() % 20; n > 0; --n) file += pieces[random() % std::size(pieces)];
    const std::string once = Set(file);
    ASSERT_EQ(Get(once), "7") << testing::PrintToString(file);
    ASSERT_EQ(Set(once), once) << testing::PrintToString(file);
  }
}

TEST(Keys, AreThoseOfTheFirstSectionOfTheName) {
  const std::string file = "a=1\n[Pipe]\n 13 =4\r\n; 9\n\nX=\n[Sheet]\n50=1\n[pipe]\n20=2\n";
  EXPECT_EQ(Private_Profile_Keys(file, "PIPE"), (std::vector<std::string>{"13", "X"}));
  EXPECT_TRUE(Private_Profile_Keys(file, "Roof").empty());
}

}  // namespace
}  // namespace norvane
