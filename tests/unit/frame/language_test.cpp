#include "frame/language.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "../support/test_program.h"
#include "../support/unreadable_file.h"
#include "catalogue/settings_form.h"
#include "data/text.h"
#include "frame/lang_form.h"
#include "frame/settings_file.h"

namespace norvane {
namespace {

class LanguageFiles : public testing::Test {
 protected:
  LanguageTables& Tables() { return program_.State().languages; }

  /// Reads a file of these bytes into slot 1.
  std::array<std::string, LanguageTables::kTexts>& Loaded(const std::string& bytes) {
    program_.folder.Write("language.lxx", bytes);
    Load_Language(program_.State(), "language.lxx", 1);
    return Tables().Lang_Text[1];
  }

  TestProgram program_;
};

using LanguageFile = LanguageFiles;

TEST_F(LanguageFile, MayHoldALineOfAnyLength) {
  const std::string text(100'000, 'x');
  const auto& texts = Loaded("a,b,0\r\n18," + text + "\r\n19,next\r\n");
  EXPECT_EQ(texts[18], text);
  EXPECT_EQ(texts[19], "next");
}

TEST_F(LanguageFile, MayHoldAHeaderOfAnyLength) {
  const std::string field(100'000, 'x');
  EXPECT_EQ(Loaded(field + "," + field + "," + field + "\r\n18,text")[18], "text");
  EXPECT_EQ(Tables().Lang_FontName[1], field);
  EXPECT_EQ(Tables().Lang_Charset[1], field);
}

TEST_F(LanguageFile, MayHoldEveryByteInATextButThoseThatEndItsLine) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += static_cast<char>(byte);
  }
  const auto& texts = Loaded("a,b,0\r\n18," + bytes + "\r\n19,next\r\n");
  EXPECT_EQ(texts[18], bytes);
  EXPECT_EQ(texts[19], "next");
}

TEST_F(LanguageFile, LosesBlanksAroundATextAndNothingElse) {
  EXPECT_EQ(Loaded("a,b,0\r\n18,  \t x \xA0  \r\n")[18], "\t x \xA0");
}

TEST_F(LanguageFile, FillsTheTableFrom0To150AndNothingBeyond) {
  const auto& texts = Loaded("a,b,0\n0,=name\n150,last\n151,beyond\n-1,below\n32767,far\n");
  EXPECT_EQ(texts[0], "name");
  EXPECT_EQ(texts[150], "last");
  EXPECT_EQ(std::count_if(texts.begin(), texts.end(), [](auto& t) { return !t.empty(); }), 2);
  for (const int slot : {0, 2, 99}) {
    for (const std::string& text : Tables().Lang_Text[static_cast<std::size_t>(slot)]) {
      ASSERT_EQ(text, "") << slot;
    }
  }
}

TEST_F(LanguageFile, OfAnyBytesFillsItsOwnSlotWithTrimmedSingleLines) {
  const std::string pieces[] = {"0",    "1",  "18", "150", "151", "-1",   "99999",
                                ",",    ",",  ",",  "=",   "\"",  " ",    "\t",
                                "\r\n", "\n", "\r", "x",   "1E2", "\xFF", std::string(1, '\0')};
  std::mt19937 random(3);
  for (int round = 0; round < 150; ++round) {
    std::string bytes;
    for (auto n = random() % 60; n > 0; --n) {
      bytes += random() % 8 == 0 ? std::string(1, static_cast<char>(random()))
                                 : pieces[random() % std::size(pieces)];
    }
    for (const std::string& text : Loaded(bytes)) {
      ASSERT_EQ(text.find_first_of("\r\n"), std::string::npos) << testing::PrintToString(bytes);
      ASSERT_EQ(Trim(text), text) << testing::PrintToString(bytes);
    }
  }
  for (const int slot : {0, 2}) {
    for (const std::string& text : Tables().Lang_Text[static_cast<std::size_t>(slot)]) {
      ASSERT_EQ(text, "") << slot;
    }
  }
  EXPECT_EQ(program_.Printed(), "");
}

TEST_F(LanguageFiles, BeyondThe99thAreNotRead) {
  // 120 codes from "a0" to "l9"; English stands between "e9" and "f0".
  for (char letter = 'a'; letter <= 'l'; ++letter) {
    for (char digit = '0'; digit <= '9'; ++digit) {
      const std::string code = {letter, digit};
      program_.folder.Write("language.l" + code, "a,b,0\r\n18," + code);
    }
  }
  Find_Languages(program_.State());
  EXPECT_EQ(program_.State().Lang_Index, 99);
  EXPECT_EQ(Tables().Lang_Code[0], "en");
  EXPECT_EQ(Tables().Lang_Text[0][18], "t18");
  for (int slot = 1; slot <= 99; ++slot) {
    const std::string code = {static_cast<char>('a' + (slot - 1) / 10),
                              static_cast<char>('0' + (slot - 1) % 10)};
    EXPECT_EQ(Tables().Lang_Code[static_cast<std::size_t>(slot)], code);
    EXPECT_EQ(Tables().Lang_Text[static_cast<std::size_t>(slot)][18], code);
  }
}

TEST_F(LanguageFiles, LeaveEnglishUnreadBehindThe99th) {
  for (char tens = '0'; tens <= '9'; ++tens) {
    for (char ones = '0'; ones <= '9'; ++ones) {
      program_.folder.Write(std::string("language.l") + tens + ones, "a,b,0\r\n18,other");
    }
  }
  Find_Languages(program_.State());
  EXPECT_EQ(Tables().Lang_Code[0], "en");
  EXPECT_EQ(Tables().Lang_Text[0][18], "");
  EXPECT_EQ(Tables().Lang_Code[99], "98");
}

TEST_F(LanguageFiles, TakeTheSlotsInTheOrderOfTheirLowerCaseNames) {
  for (const char* name : {"language.lfr", "LANGUAGE.LDE", "Language.lNL", "language.lcs"}) {
    program_.folder.Write(name, "");
  }
  Find_Languages(program_.State());
  const char* const codes[] = {"en", "cs", "DE", "fr", "NL"};
  for (std::size_t slot = 0; slot < std::size(codes); ++slot) {
    EXPECT_EQ(Tables().Lang_Code[slot], codes[slot]);
  }
  EXPECT_EQ(Tables().Lang_Code[5], std::nullopt);
}

TEST_F(LanguageFiles, AreCountedFromEnglishOn) {
  program_.folder.Write("language.lfr", "a,b,0\r\n18,texte");
  program_.State().Lang_Index = 5;
  Find_Languages(program_.State());
  EXPECT_EQ(program_.State().Lang_Index, 1);
  EXPECT_EQ(Tables().Lang_Text[1][18], "texte");
}

TEST_F(LanguageFiles, ThatCannotBeOpenedAreToldAndPassedOver) {
  const UnreadableFile german(program_.folder / "language.lde");
  program_.folder.Write("language.lfr", "a,b,0\r\n18,texte");
  Find_Languages(program_.State());
  EXPECT_EQ(program_.Printed(),
            "message Norvane | Unable to find Language file | none | ok -> ok\n");
  EXPECT_EQ(Tables().Lang_Code[1], "de");
  EXPECT_EQ(Tables().Lang_Charset[1], std::nullopt);
  EXPECT_EQ(Tables().Lang_Text[1][18], "");
  EXPECT_EQ(Tables().Lang_Code[2], "fr");
  EXPECT_EQ(Tables().Lang_Text[2][18], "texte");
}

TEST_F(LanguageFiles, AreReadOnceAndNeverAgain) {
  program_.Start();
  program_.folder.Write("language.len", "a,b,0\r\n18,changed");
  ASSERT_EQ(program_.Click(program_.Main_Screen().lblMenu(1)), std::nullopt);
  ASSERT_EQ(program_.Click(program_.State().forms.lang->Label2(0)), std::nullopt);
  EXPECT_EQ(program_.State().Text(TextId::kMediumTemperature), "t18");
}

/// A change of the language, of which the dialog shows slots 0 to 19.
class ALanguageChange : public LanguageFiles {
 protected:
  ALanguageChange() {
    program_.folder.Write("language.lde", "Norvane,Arial,0\r\n0,name=Deutsch-1\r\n18,Medium\r\n");
    program_.Start();
  }

  void Select(std::int16_t slot) { program_.State().forms.lang->Select_Language(slot); }

  static constexpr const char* kQuestion =
      "message Norvane | Changing the language will clear saved data,\\r\\ndo you wish to continue "
      "| "
      "exclamation | yes/no -> no (unanswered)\n";
};

TEST_F(ALanguageChange, AsksWhereNoListOfCalculationsExists) {
  Select(1);
  EXPECT_EQ(program_.Printed(), "");
  program_.State().Calc_List.clear();
  Select(0);
  EXPECT_EQ(program_.Printed(), kQuestion);
}

TEST_F(ALanguageChange, MayBeToTheLastThatTheDialogShows) {
  Tables().Lang_Code[19] = "zz";
  Select(19);
  EXPECT_EQ(program_.State().Lang_Index, 19);
}

TEST_F(ALanguageChange, ToALanguageThatTheDialogDoesNotShowIsWrittenAlone) {
  Tables().Lang_Code[20] = "zz";
  Select(20);
  EXPECT_EQ(program_.State().Lang_Index, 0);
  EXPECT_EQ(Ini_Read(program_.State(), "norvane.ini", "Init", "Language", "en"), "zz");
}

TEST_F(ALanguageChange, GoesAsFarAsABrokenCharacterSetLetsIt) {
  Tables().Lang_Charset[1] = "Baltic";
  Select(1);
  EXPECT_EQ(program_.State().Text(TextId::kMediumTemperature), "Medium");
  EXPECT_EQ(program_.Main_Screen().Label1(0).Caption(), "Medium");
  EXPECT_FALSE(program_.program.Ended());
}

TEST_F(ALanguageChange, GivesTheSettingsAFontWithoutABrokenCharacterSet) {
  Tables().Lang_FontName[1] = "Verdana";
  Tables().Lang_Charset[1] = "Baltic";
  program_.State().Lang_Index = 1;
  Apply_Language_Settings(program_.State());
  EXPECT_EQ(program_.State().forms.settings->Command1.Font(), (Font{"Verdana", 10, false, 0}));
  Tables().Lang_Code[1] = "ru";
  Apply_Language_Settings(program_.State());
  EXPECT_EQ(program_.State().forms.settings->Command1.Font(), (Font{"Verdana", 9, false, 0}));
}

}  // namespace
}  // namespace norvane
