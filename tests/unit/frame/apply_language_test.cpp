#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../support/test_program.h"
#include "catalogue/settings_form.h"
#include "frame/lang_form.h"
#include "frame/language.h"

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

template <class Labels>
Texts Captions(Labels& labels) {
  Texts captions;
  for (auto& label : labels) captions.push_back(label.Caption());
  return captions;
}

/// The texts of these numbers, as the numbered language file gives them.
Texts Numbered(const std::vector<int>& numbers) {
  Texts texts;
  for (const int number : numbers) {
    texts.push_back(number == 0 ? "" : "t" + std::to_string(number));
  }
  return texts;
}

class TheLanguage : public testing::Test {
 protected:
  TheLanguage() { program_.Start(); }

  void Apply() { Apply_Language(program_.State()); }

  template <class Labels>
  void Has_Font(Labels& labels, const Font& font) {
    for (auto& label : labels) EXPECT_EQ(label.Font(), font) << label.Name() << label.Index();
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
  Settings& settings_ = *program_.State().forms.settings;
};

TEST_F(TheLanguage, PutsEachTextInItsPlaceOnTheMainScreen) {
  Apply();
  EXPECT_EQ(warmt_.Label10.Caption(), "English 1");
  EXPECT_EQ(Captions(warmt_.lblMenu), Numbered({0, 12, 32, 4}));
  EXPECT_EQ(Captions(warmt_.Label1), Numbered({18, 19, 20, 21, 36, 68}));
  EXPECT_EQ(Captions(warmt_.Label7), Numbered({69, 69, 71, 71, 0}));
  EXPECT_EQ(Captions(warmt_.Label8), Numbered({70, 70, 72, 72}));
  EXPECT_EQ(Captions(warmt_.Label3), Numbered({24, 25, 26, 27, 28, 29, 48, 49, 51}));
  EXPECT_EQ(Captions(warmt_.Label9), Numbered({73, 74, 69, 75, 75, 75, 76, 77, 78}));
  EXPECT_EQ(warmt_.Label6.Caption(), "t59 (t66: 24, t67:  30, t68:  1)");
}

TEST_F(TheLanguage, NamesTheKindAndItsUnit) {
  const char* const names[] = {"t22", "t23", "t35", "t33"};
  const int units[] = {75, 75, 75, 79};
  for (std::int16_t kind = 0; kind < 4; ++kind) {
    program_.State().Sel_Size = kind;
    Apply();
    EXPECT_EQ(warmt_.Label0.Caption(), names[kind]);
    const int unit = units[kind];
    EXPECT_EQ(Captions(warmt_.Label9), Numbered({73, 74, 69, unit, unit, unit, 76, 77, 78}));
  }
}

TEST_F(TheLanguage, PutsEachTextInItsPlaceInTheSettings) {
  Apply();
  EXPECT_EQ(settings_.SSTab1.TabCaption(0), "t59");
  EXPECT_EQ(settings_.SSTab1.TabCaption(1), "t47");
  EXPECT_EQ(settings_.SSTab1.TabCaption(2), "t44");
  EXPECT_EQ(settings_.Label2.Caption(), "t43");
  EXPECT_EQ(settings_.Label7.Caption(), "t60");
  EXPECT_EQ(Captions(settings_.Label6), Numbered({61, 62}));
  EXPECT_EQ(settings_.Command1.Caption(), "t64");
  EXPECT_EQ(settings_.Command2.Caption(), "t65");
}

TEST_F(TheLanguage, GivesItsFontToTheMainScreen) {
  program_.State().languages.Lang_FontName[0] = "Verdana";
  program_.State().languages.Lang_Charset[0] = "204";
  Apply();
  const Font normal{"Verdana", 9, false, 204};
  const Font large{"Verdana", 10, false, 204};
  for (const int row : {0, 1, 2, 3, 4}) EXPECT_EQ(warmt_.Label1(row).Font(), normal) << row;
  Has_Font(warmt_.Label7, normal);
  Has_Font(warmt_.Label8, normal);
  Has_Font(warmt_.Label3, normal);
  Has_Font(warmt_.Label9, normal);
  EXPECT_EQ(warmt_.Label0.Font(), normal);
  EXPECT_EQ(warmt_.Label6.Font(), normal);
  EXPECT_EQ(warmt_.Label10.Font(), large);
  Has_Font(warmt_.lblMenu, large);
  EXPECT_EQ(warmt_.LblTooltip.Font(), (Font{"Verdana", 8, false, 204}));
  program_.State().Tool_Sel[kModeGroup] = 1;
  Apply();
  EXPECT_EQ(warmt_.Label1(2).Font(), (Font{"Verdana", 9, true, 204}));
}

TEST_F(TheLanguage, GivesItsFontToTheSettings) {
  program_.State().languages.Lang_FontName[0] = "Verdana";
  program_.State().languages.Lang_Charset[0] = "204";
  Apply();
  const Font font{"Verdana", 10, false, 204};
  EXPECT_EQ(settings_.SSTab1.Font(), font);
  Has_Font(settings_.Label1, font);
  EXPECT_EQ(settings_.Label7.Font(), font);
  Has_Font(settings_.Label6, font);
  EXPECT_EQ(settings_.Command1.Font(), font);
  EXPECT_EQ(settings_.Command2.Font(), font);
}

TEST_F(TheLanguage, LeavesTheFontOfTheDesignToTheFields) {
  const auto fonts = [this] {
    std::vector<Font> all{warmt_.Label1(5).Font()};
    for (auto& field : warmt_.Label2) all.push_back(field.Font());
    for (auto& field : warmt_.Label4) all.push_back(field.Font());
    for (auto& field : warmt_.Text2) all.push_back(field.Font());
    for (auto& field : warmt_.txtT) all.push_back(field.Font());
    return all;
  };
  const std::vector<Font> before = fonts();
  program_.State().languages.Lang_FontName[0] = "Verdana";
  program_.State().languages.Lang_Charset[0] = "204";
  Apply();
  EXPECT_TRUE(fonts() == before);
}

TEST(TheLanguageDialog, HasAVersionInItsDesign) {
  TestProgram program;
  EXPECT_EQ(program.State().forms.lang->Label3(0).Caption(), "3.0.99");
}

}  // namespace
}  // namespace norvane
