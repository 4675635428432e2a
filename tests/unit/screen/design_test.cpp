#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../support/test_program.h"

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

template <class Labels>
Texts Captions(Labels& labels) {
  Texts captions;
  for (auto& label : labels) captions.push_back(label.Caption());
  return captions;
}

/// The main screen as it is drawn up, before it is loaded.
class TheDesign : public testing::Test {
 protected:
  TestProgram program_;
  Warmt warmt_{program_.State()};
};

TEST_F(TheDesign, HeadsTheInputRows) {
  EXPECT_EQ(Captions(warmt_.Label1), (Texts{"Mediumtemperatuur in leiding", "Omgevingstemperatuur",
                                            "Dikte isolatie materiaal", "Diameter van de leiding",
                                            "Relatieve vochtigheid", "aantal meters"}));
  EXPECT_EQ(Captions(warmt_.Label7), (Texts{"\xB0\x43", "\xB0\x43", "mm", "mm", ""}));
  EXPECT_EQ(Captions(warmt_.Label8), (Texts{"\xB0\x46", "\xB0\x46", "inch", "inch"}));
}

TEST_F(TheDesign, HeadsTheResultRows) {
  EXPECT_EQ(Captions(warmt_.Label3),
            (Texts{"Warmtegeleidingscoefficient ", "Warmte-overdrachtscoeficient",
                   "Oppervlaktetemperatuur", "Warmte-afgifte onge-isoleerd",
                   "Warmte-afgifte ge-isoleerd", "Besparing", "Besparing in aardgas",
                   "Besparing in huisbrandolie", "Besparing in electriciteit"}));
  EXPECT_EQ(Captions(warmt_.Label9),
            (Texts{"W/mK", "W/m\xB2K", "\xB0\x43", "W/m", "W/m", "W/m", "m\xB3", "ltr", "kWh"}));
  EXPECT_EQ(warmt_.Label6.Caption(), "Label6");
}

TEST_F(TheDesign, WritesLambdaAndAlphaInASymbolFont) {
  EXPECT_EQ(Captions(warmt_.Label2), (Texts{"l", "a"}));
  for (CaptionField& letter : warmt_.Label2) {
    EXPECT_EQ(letter.Font(), (Font{"Symbol", 9, false, 2}));
  }
}

TEST_F(TheDesign, NamesTheRest) {
  EXPECT_EQ(warmt_.Label0.Caption(), "Buis (Cu)");
  EXPECT_EQ(Captions(warmt_.lblMenu), (Texts{"Menuitem0", "Menuitem1", "Menuitem2", "Menuitem3"}));
  EXPECT_EQ(warmt_.Label10.Caption(), "Language");
  EXPECT_EQ(warmt_.cmdAdd.Caption(), "Add to Total");
}

TEST_F(TheDesign, StartsWithEmptyFieldsButTheLength) {
  for (TextField& field : warmt_.txtT) EXPECT_EQ(field.Text(), "");
  for (TextField& field : warmt_.txtC) {
    EXPECT_EQ(field.Text(), "");
    EXPECT_EQ(field.Locked(), field.Index() == 4);
  }
  EXPECT_EQ(warmt_.Text4(1).Text(), "");
  EXPECT_FALSE(warmt_.Text4(1).Visible());
  EXPECT_EQ(warmt_.txtmtrs.Text(), "0");
}

TEST_F(TheDesign, WritesNumbersInArialOf9Points) {
  for (TextField& field : warmt_.txtT) {
    EXPECT_EQ(field.Font(), (Font{"Arial", 9, false, std::nullopt}));
  }
}

TEST_F(TheDesign, GivesTheConversionsAGroundAndTheFootABar) {
  for (CaptionField& conversion : warmt_.Text2) {
    EXPECT_EQ(conversion.BackStyle(), BackStyle::kOpaque);
    EXPECT_EQ(conversion.BackColor(), (BackColor{224, 224, 224}));
  }
  EXPECT_EQ(warmt_.Label5.BackStyle(), BackStyle::kOpaque);
  EXPECT_EQ(warmt_.Label5.BackColor(), (BackColor{105, 176, 17}));
}

TEST_F(TheDesign, HidesTheTooltipAndTheButtonOfOneLanguage) {
  EXPECT_FALSE(warmt_.picToolTip.Visible());
  EXPECT_EQ(warmt_.LblTooltip.panel, &warmt_.picToolTip);
  EXPECT_EQ(warmt_.LblTooltip.Place(), (Place{0, 0, 3000, 255}));
  for (Button& button : warmt_.cmdToolBar4) EXPECT_EQ(button.Visible(), button.Index() != 2);
}

class TheToolbar : public TheDesign {
 protected:
  /// Its buttons from left to right.
  std::vector<Button*> Buttons() {
    std::vector<Button*> buttons;
    for (Button& button : warmt_.cmdToolBar0) buttons.push_back(&button);
    for (Button& button : warmt_.cmdToolBar1) buttons.push_back(&button);
    buttons.push_back(&warmt_.cmdToolBarT);
    buttons.push_back(&warmt_.cmdToolBarC);
    for (Button& button : warmt_.cmdToolBar3) buttons.push_back(&button);
    for (Button& button : warmt_.cmdToolBar4) buttons.push_back(&button);
    for (Button& button : warmt_.cmdToolBar5) buttons.push_back(&button);
    return buttons;
  }
};

TEST_F(TheToolbar, HasItsButtonsSideBySideInItsStrip) {
  double left = 0;
  for (Button* button : Buttons()) {
    const Place& place = button->Place();
    EXPECT_EQ(button->panel, &warmt_.picToolbar);
    EXPECT_GE(place.left, left) << button->Name();
    EXPECT_EQ(place.width, 480);
    EXPECT_EQ(place.height, 360);
    EXPECT_EQ(place.top, 20);
    left = place.left + place.width;
  }
  const Place& strip = warmt_.picToolbar.Place();
  EXPECT_EQ(strip.left, 1150);
  EXPECT_EQ(strip.top, 1020);
  EXPECT_EQ(strip.height, 385);
  EXPECT_LE(left, strip.width);
}

TEST_F(TheToolbar, PutsTheTooltipBelowItsButton) {
  const Place strip = warmt_.picToolbar.Place();
  for (Button* button : Buttons()) {
    button->On_Hover();
    const Place& at = button->Place();
    EXPECT_EQ(warmt_.picToolTip.Place().left, at.left + strip.left + 150) << button->Name();
    EXPECT_EQ(warmt_.picToolTip.Place().top, strip.top + 25 + at.top + at.height - 100);
    EXPECT_TRUE(warmt_.picToolTip.Visible());
  }
}

TEST_F(TheToolbar, MakesTheBoxOfTheTooltipALittleWiderThanItsLabel) {
  warmt_.LblTooltip.Set_Place({70, 50, 3000, 255});
  warmt_.Init_toolbar();
  EXPECT_EQ(warmt_.LblTooltip.Place(), (Place{70, 0, 3000, 255}));
  EXPECT_EQ(warmt_.picToolTip.Place().width, 3100);
  EXPECT_EQ(warmt_.picToolTip.Place().height, 255);
}

TEST_F(TheToolbar, StartsWithOtherChoicesThanTheFirstPresses) {
  auto& chosen = program_.State().Tool_Sel;
  chosen.fill(9);
  warmt_.Init_toolbar();
  EXPECT_EQ(chosen[1], 1);
  EXPECT_EQ(chosen[2], 1);
  EXPECT_EQ(chosen[4], 0);
}

}  // namespace
}  // namespace norvane
