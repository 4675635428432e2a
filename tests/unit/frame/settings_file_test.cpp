#include "frame/settings_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../data/error_of.h"
#include "../support/test_program.h"

namespace norvane {
namespace {

constexpr const char* kFile = "norvane.ini";

class SettingsFile : public testing::Test {
 protected:
  std::string Read(const std::string& section, const std::string& key,
                   const std::string& otherwise) {
    return Ini_Read(program_.State(), kFile, section, key, otherwise);
  }
  void Write(const std::string& section, const std::string& key, const std::string& value) {
    Ini_Write(program_.State(), kFile, section, key, value);
  }
  void Holds(const std::string& bytes) const { program_.folder.Write(kFile, bytes); }
  std::string Bytes() const { return program_.folder.Bytes_Of(kFile); }

  TestProgram program_;
};

using ReadSetting = SettingsFile;
using WrittenSetting = SettingsFile;
using HoursAndDays = SettingsFile;

TEST_F(ReadSetting, IsTheDefaultWithoutAFileAndMakesNone) {
  EXPECT_EQ(Read("Setting", "Days", "30"), "30");
  EXPECT_EQ(program_.folder.Names(), std::vector<std::string>{"language.len"});
}

TEST_F(ReadSetting, IsTheDefaultWithoutItsSectionOrKey) {
  Holds("[Init]\r\nHr_Day=8\r\n[Setting]\r\n");
  EXPECT_EQ(Read("Setting", "Hr_Day", "24"), "24");
  EXPECT_EQ(Read("Other", "Hr_Day", "24"), "24");
}

TEST_F(ReadSetting, IsTheDefaultWhenSectionKeyOrDefaultAreEmpty) {
  Holds("[]\r\nDays=1\r\n=2\r\n[Setting]\r\nDays=3\r\n=4\r\n");
  EXPECT_EQ(Read("", "Days", "30"), "30");
  EXPECT_EQ(Read("Setting", "", "30"), "30");
  EXPECT_EQ(Read("Setting", "Days", ""), "");
  EXPECT_EQ(Read("Setting", "Days", "30"), "3");
}

TEST_F(ReadSetting, IsNotTrimmedWhenItIsTheDefault) {
  EXPECT_EQ(Read("Setting", "Days", " 30 "), " 30 ");
}

TEST_F(ReadSetting, OfAnEmptyValueIsABufferOfZeros) {
  Holds("[Setting]\r\nDays=\r\nHr_Day= \t \r\n");
  EXPECT_EQ(Read("Setting", "Days", "30"), std::string(255, '\0'));
  EXPECT_EQ(Read("Setting", "Hr_Day", "24"), std::string(255, '\0'));
}

TEST_F(ReadSetting, HasAtMost254Letters) {
  for (const std::size_t length : {1U, 253U, 254U, 255U, 256U, 1000U}) {
    const std::string value = "<" + std::string(length - 1, 'x');
    Holds("[Setting]\r\nDays=" + value + "\r\n");
    EXPECT_EQ(Read("Setting", "Days", "30"), value.substr(0, 254)) << length;
  }
}

TEST_F(ReadSetting, IsReadAgainEachTime) {
  Holds("[Setting]\r\nDays=1\r\n");
  EXPECT_EQ(Read("Setting", "Days", "30"), "1");
  Holds("[Setting]\r\nDays=2\r\n");
  EXPECT_EQ(Read("Setting", "Days", "30"), "2");
}

TEST_F(WrittenSetting, MakesTheFileTheSectionAndTheKey) {
  Write("Setting", "Days", " 7");
  EXPECT_EQ(Bytes(), "[Setting]\r\nDays= 7\r\n");
}

TEST_F(WrittenSetting, MayBeEmpty) {
  Write("Setting", "Days", "");
  EXPECT_EQ(Bytes(), "[Setting]\r\nDays=\r\n");
}

TEST_F(WrittenSetting, WithoutSectionOrKeyIsAMessageAndNoFile) {
  const std::string message =
      "message Ini_Write | Error - validation, write INI-file | exclamation | ok -> ok\n";
  Write("", "Days", "7");
  EXPECT_EQ(program_.Printed(), message);
  Write("Setting", "", "7");
  EXPECT_EQ(program_.Printed(), message);
  EXPECT_EQ(program_.folder.Names(), std::vector<std::string>{"language.len"});
}

TEST_F(WrittenSetting, WithoutAFileNameIsPassedOverInSilence) {
  Ini_Write(program_.State(), "", "Setting", "Days", "7");
  Ini_Write(program_.State(), "", "", "", "");
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(program_.folder.Names(), std::vector<std::string>{"language.len"});
}

TEST_F(WrittenSetting, IntoAReadOnlyFileIsPassedOverInSilence) {
  Holds("[Setting]\r\nDays=3\r\n");
  std::filesystem::permissions(program_.folder / kFile, std::filesystem::perms::owner_read);
  Write("Setting", "Days", "7");
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(Read("Setting", "Days", "30"), "3");
}

TEST_F(WrittenSetting, GoesToTheFileOfAnySpelling) {
  program_.folder.Write("NORVANE.INI", "[Setting]\r\n");
  Write("Setting", "Days", "7");
  EXPECT_EQ(program_.folder.Bytes_Of("NORVANE.INI"), "[Setting]\r\nDays=7\r\n");
  EXPECT_EQ(program_.folder.Names(), (std::vector<std::string>{"NORVANE.INI", "language.len"}));
}

TEST_F(SettingsFile, OfANewFolderHoldsTheStartOfTheDewPointTableAfterTheStart) {
  program_.Start();
  EXPECT_EQ(Bytes(), "[Init]\r\nA1= 17\r\nA4= 9\r\n");
}

TEST_F(SettingsFile, KeepsAllElseThroughAStart) {
  Holds("; by hand\n[Own]\nx=1\n\n[init]\na4=3\nLanguage=EN");
  program_.Start();
  EXPECT_EQ(Bytes(), "; by hand\n[Own]\nx=1\n\n[init]\na4= 9\nLanguage=EN\nA1= 17\n");
}

TEST_F(HoursAndDays, AreADayOf24HoursAndAMonthOf30DaysAtFirst) {
  Read_Settings(program_.State());
  EXPECT_EQ(program_.State().Hr_Day, 24);
  EXPECT_EQ(program_.State().Days, 30);
}

TEST_F(HoursAndDays, AreRoundedToTheEvenNeighbour) {
  Holds("[Setting]\r\nHr_Day=2.5\r\nDays=3.5\r\n");
  Read_Settings(program_.State());
  EXPECT_EQ(program_.State().Hr_Day, 2);
  EXPECT_EQ(program_.State().Days, 4);
}

TEST_F(HoursAndDays, AreZeroWhereNoNumberStands) {
  Holds("[Setting]\r\nHr_Day=\r\nDays=\"5\"\r\n");
  Read_Settings(program_.State());
  EXPECT_EQ(program_.State().Hr_Day, 0);
  EXPECT_EQ(program_.State().Days, 0);
}

TEST_F(HoursAndDays, FillThe16BitsToTheirEnds) {
  Holds("[Setting]\r\nHr_Day=32767.4\r\nDays=-32768.5\r\n");
  Read_Settings(program_.State());
  EXPECT_EQ(program_.State().Hr_Day, 32767);
  EXPECT_EQ(program_.State().Days, -32768);
}

TEST_F(HoursAndDays, BeyondThe16BitsAreAnOverflow) {
  for (const char* number : {"32767.5", "32768", "-32769", "1E999"}) {
    for (const char* key : {"Hr_Day", "Days"}) {
      Holds(std::string("[Setting]\r\n") + key + "=" + number + "\r\n");
      EXPECT_EQ(Error_Of([&] { Read_Settings(program_.State()); }), 6) << key << ' ' << number;
    }
  }
}

}  // namespace
}  // namespace norvane
