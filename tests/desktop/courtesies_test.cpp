#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "desktop/letters.h"
#include "desktop/result_card.h"
#include "window_test.h"

namespace norvane {
namespace {

TEST(Letters, The_First_Letter_Of_A_Text_Is_Chosen) {
  EXPECT_EQ(Choose_Letters({"Language", "Exit"}), (std::vector<QChar>{'l', 'e'}));
}

TEST(Letters, A_Taken_Letter_Gives_Way_To_The_Next_Word_And_Then_To_Any_Other) {
  EXPECT_EQ(Choose_Letters({"Addresses", "Ambient temperature", "Add to", "Tad"}),
            (std::vector<QChar>{'a', 't', 'd', QChar()}));
}

TEST(Letters, Letters_Of_Any_Alphabet_Are_Chosen_And_Signs_Are_Not) {
  EXPECT_EQ(Choose_Letters({"\u042F\u0437\u044B\u043A", "(%)", ""}),
            (std::vector<QChar>{QChar(0x044F), QChar(), QChar()}));
}

TEST(Letters, The_Letter_Is_Marked_At_The_Beginning_Of_A_Word_If_It_Can_Be) {
  EXPECT_EQ(With_Letter("Ambient temperature", 't'), "Ambient &temperature");
  EXPECT_EQ(With_Letter("Add to Total", 'd'), "A&dd to Total");
}

TEST(Letters, An_Ampersand_Of_The_Text_Stays_One) {
  EXPECT_EQ(With_Letter("Oil & gas", 'g'), "Oil && &gas");
  EXPECT_EQ(With_Letter("Oil & gas", {}), "Oil && gas");
}

class Courtesies : public WindowTest {
 protected:
  ResultCard& Results() { return *Main_View().findChild<ResultCard*>(); }
};

TEST_F(Courtesies, Alt_And_A_Letter_Of_A_Heading_Reach_Its_Field_And_Mark_It) {
  Press(Qt::Key_I, Qt::AltModifier);  // "Insulation thickness"
  EXPECT_TRUE(Edit(Screen().txtT(2)).hasFocus());
  Type("13");
  EXPECT_EQ(Shown(Screen().txtT(2)), "13");
}

TEST_F(Courtesies, The_Same_Letter_Reaches_The_Field_Of_The_Other_Mode) {
  Click(Screen().cmdToolBarC);
  Press(Qt::Key_P, Qt::AltModifier);  // "Pipe diameter"
  EXPECT_TRUE(Edit(Screen().txtC(3)).hasFocus());
}

TEST_F(Courtesies, Alt_And_A_Letter_Press_A_Button) {
  Press(Qt::Key_D, Qt::AltModifier);  // "Add to Total"
  EXPECT_TRUE(QTest::qWaitFor([&] { return State().Calc_List.size() == 3; }, 5000));
}

TEST_F(Courtesies, Ctrl_C_On_The_Results_Copies_Them_As_Aligned_Text) {
  Mark(Screen().txtT(2));
  Type("13");
  norvane::Click(Results());
  EXPECT_TRUE(Results().hasFocus());
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            Number("Thermal conductivity          0.039 W/mK\n"
                   "Heat transfer coefficient      12.5 W/m\u00B2K\n"
                   "Surface temperature            22.8 \u00B0C\n"
                   "Heat loss without insulation   25.5 W/m\n"
                   "Heat loss with insulation      11.0 W/m\n"
                   "Savings (Hours/day: 24, Days:  30, Metres or m\u00B2:  1)\n"
                   "Saving                        14.54 W/m     57%\n"
                   "Natural gas saving             1.08 m\u00B3\n"
                   "Heating oil saving             0.86 litres\n"
                   "Electricity saving            10.47 kWh\n")
                .c_str());
}

TEST_F(Courtesies, In_The_Other_Mode_The_Copy_Holds_The_Rows_That_Show) {
  Click(Screen().cmdToolBarC);
  norvane::Click(Results());
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 3);
}

TEST_F(Courtesies, The_Way_To_The_Totals_Tells_How_Many_Lines_Wait) {
  for (int lines = 1; lines <= 2; ++lines) {
    Click(Screen().cmdAdd);
    EXPECT_EQ(Widget(Screen().picTotal).toolTip(), QString("Show totals: %1").arg(lines));
    EXPECT_EQ(Widget(Screen().picTotal).accessibleName(), QString("Show totals: %1").arg(lines));
  }
}

TEST_F(Courtesies, A_Value_Is_Told_With_Its_Heading_And_Unit) {
  Mark(Screen().txtT(2));
  Type("13");
  EXPECT_EQ(Widget(Screen().Label4(4)).accessibleName(),
            Number("Heat loss with insulation: 11.0 W/m").c_str());
  EXPECT_EQ(Widget(Screen().Label4(5)).accessibleName(), "Saving: 57%");
  EXPECT_EQ(Widget(Screen().txtT(2)).accessibleName(), "Insulation thickness");
  EXPECT_EQ(Widget(Screen().txtT(2)).accessibleDescription(), "mm");
}

}  // namespace
}  // namespace norvane
