#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "window_test.h"

namespace norvane {
namespace {

/// Fields of the main screen that are typed into with real keys.
class Typing : public WindowTest {
 protected:
  /// Types over the whole field and compares all widgets with the model after each letter.
  void Type_And_Compare(const TextField& field, const QString& text,
                        const std::vector<std::string>& shown) {
    Mark(field);
    for (qsizetype i = 0; i < text.size(); ++i) {
      Type(text.mid(i, 1));
      EXPECT_EQ(Shown(field), shown.at(static_cast<std::size_t>(i))) << "letter " << i;
      EXPECT_EQ(field.Text(), shown.at(static_cast<std::size_t>(i))) << "letter " << i;
      Expect_Same_As_Model(Main_View());
    }
  }
};

TEST_F(Typing, The_First_Answer_Stands_On_The_Screen) {
  Expect_Same_As_Model(Main_View());
  EXPECT_EQ(Shown(Screen().txtT(0)), "80");
  EXPECT_EQ(Shown(Screen().txtT(1)), "15");
  EXPECT_EQ(Shown(Screen().txtT(2)), "0");
  EXPECT_EQ(Shown(Screen().txtT(3)), "10");
  EXPECT_EQ(Shown(Screen().txtmtrs), "1");
  // Without insulation the surface is as hot as the medium, and nothing is saved.
  EXPECT_EQ(Shown(Screen().Label4(2)), Number("80.0"));
  EXPECT_EQ(Shown(Screen().Label4(3)), Number("25.5"));
  EXPECT_EQ(Shown(Screen().Label4(4)), Number("25.5"));
  EXPECT_EQ(Shown(Screen().Label4(5)), "0%");
  EXPECT_EQ(Shown(Screen().Label4(9)), Number("0.00"));
}

TEST_F(Typing, Results_Follow_The_Thickness_Letter_By_Letter) {
  Step_Up(Screen().SpinButton1(3));  // 15
  Step_Up(Screen().SpinButton1(3));  // 18
  Step_Up(Screen().SpinButton1(3));  // 21
  EXPECT_EQ(Shown(Screen().txtT(3)), "21");
  Type_And_Compare(Screen().txtT(2), "13", {"1", "13"});
  EXPECT_EQ(Shown(Screen().Label4(0)), Number("0.039"));
  EXPECT_EQ(Shown(Screen().Label4(1)), Number("12.5"));
  EXPECT_EQ(Shown(Screen().Label4(2)), Number("24.2"));
  EXPECT_EQ(Shown(Screen().Label4(3)), Number("53.6"));
  EXPECT_EQ(Shown(Screen().Label4(4)), Number("17.0"));
  EXPECT_EQ(Shown(Screen().Label4(5)), "68%");
  EXPECT_EQ(Shown(Screen().Label4(6)), Number("36.58"));
  EXPECT_EQ(Shown(Screen().Label4(7)), Number("2.72"));
  EXPECT_EQ(Shown(Screen().Label4(8)), Number("2.16"));
  EXPECT_EQ(Shown(Screen().Label4(9)), Number("26.34"));
  EXPECT_EQ(Shown(Screen().Text2(2)), "1/2");
}

TEST_F(Typing, A_Temperature_Is_Cut_At_Its_Limit) {
  Type_And_Compare(Screen().txtT(0), "125", {"1", "12", "115"});
  EXPECT_EQ(Shown(Screen().Text2(0)), "239");
  Type_And_Compare(Screen().txtT(1), "111", {"1", "11", "110"});
  EXPECT_EQ(Shown(Screen().Text2(1)), "230");
}

TEST_F(Typing, A_Thickness_Is_Cut_At_100) {
  Type_And_Compare(Screen().txtT(2), "101", {"1", "10", "100"});
}

TEST_F(Typing, A_Diameter_Is_Cut_At_The_Last_Size_Of_The_Family) {
  Type_And_Compare(Screen().txtT(3), "916", {"9", "91", "915"});
  EXPECT_EQ(Shown(Screen().Text2(3)), "36");
}

TEST_F(Typing, A_Diameter_That_Is_No_Size_Shows_No_Inch) {
  Type_And_Compare(Screen().txtT(3), "89", {"8", "89"});
  EXPECT_EQ(Shown(Screen().Text2(3)), "3");
  EXPECT_TRUE(Widget(Screen().Text2(3)).isVisible());
  Type("0");  // 890
  EXPECT_EQ(Shown(Screen().txtT(3)), "890");
  EXPECT_FALSE(Widget(Screen().Text2(3)).isVisible());
  EXPECT_FALSE(Widget(Screen().Label8(3)).isVisible());
}

TEST_F(Typing, A_Too_Small_Diameter_Becomes_10_With_Fresh_Results) {
  Type_And_Compare(Screen().txtT(3), "5", {"10"});
  EXPECT_EQ(Shown(Screen().Label4(2)), Number("80.0"));
  Type("1");
  EXPECT_EQ(Shown(Screen().txtT(3)), "101");
}

TEST_F(Typing, The_Length_Is_Cut_At_10000_And_Otherwise_Left_As_Typed) {
  Type_And_Compare(Screen().txtmtrs, "10001", {"1", "10", "100", "1000", "10000"});
  Type_And_Compare(Screen().txtmtrs, "12m", {"1", "12", "12m"});
  EXPECT_EQ(State().Mtrs, 12);
  Type_And_Compare(Screen().txtmtrs, "-3", {"-", "-3"});
  EXPECT_EQ(State().Mtrs, -3);
  Mark(Screen().txtmtrs);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Shown(Screen().txtmtrs), "");
  EXPECT_EQ(State().Mtrs, 0);
}

TEST_F(Typing, What_Is_No_Number_Leaves_No_Trace) {
  Type_And_Compare(Screen().txtT(0), "x", {"0"});
  Type_And_Compare(Screen().txtT(0), "-", {"0"});
  Type_And_Compare(Screen().txtT(0), "1.", {"1", "1"});
  Type_And_Compare(Screen().txtT(0), "12,5x", {"1", "12", "12", "115", "115"});
  Mark(Screen().txtT(1));
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Shown(Screen().txtT(1)), "0");
}

TEST_F(Typing, An_Entry_Of_The_Context_Menu_May_Let_Events_Run_Meanwhile) {
  // A length that is cut does so, and the menu is still in the middle of its click.
  Mark(Screen().txtmtrs);
  QApplication::clipboard()->setText("20000");
  QPointer<QMenu> menu;
  bool still_there = false;
  QLineEdit& length = Edit(Screen().txtmtrs);
  QObject::connect(&length, &QLineEdit::textEdited, &length, [&] { still_there = menu; });
  QTimer::singleShot(100, [&] {
    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    for (QAction* action : menu->actions()) {
      if (action->text().startsWith("&Paste")) menu->setActiveAction(action);
    }
    ASSERT_TRUE(menu->activeAction());
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {},
                      menu->actionGeometry(menu->activeAction()).center());
  });
  QTest::mouseClick(Main_View().windowHandle(), Qt::RightButton, {}, Middle(length));
  QTest::qWait(300);
  EXPECT_EQ(Shown(Screen().txtmtrs), "10000");
  EXPECT_TRUE(still_there);
  EXPECT_FALSE(menu);
}

TEST_F(Typing, Fields_Of_Condensation_Follow_The_Keys) {
  Click(Screen().cmdToolBarC);
  Type_And_Compare(Screen().txtC(0), "5", {"5"});
  EXPECT_EQ(Shown(Screen().Text2(0)), "41");
  Type_And_Compare(Screen().txtC(0), "10", {"1", "10"});
  EXPECT_EQ(Shown(Screen().txtC(2)), Number("1.7"));
  // The thickness is a result here: what is typed over it vanishes.
  Mark(Screen().txtC(2));
  Type("9");
  EXPECT_EQ(Shown(Screen().txtC(2)), Number("1.7"));
}

TEST_F(Typing, A_Too_Small_Diameter_Blanks_The_Results_Of_Condensation) {
  Click(Screen().cmdToolBarC);
  Type_And_Compare(Screen().txtC(3), "5", {"5"});
  EXPECT_EQ(Shown(Screen().Label4(2)), "");
  Type("0");
  EXPECT_EQ(Shown(Screen().txtC(3)), "50");
  EXPECT_NE(Shown(Screen().Label4(2)), "");
  // A change of another field takes the user back to a diameter that is too small.
  Type_And_Compare(Screen().txtC(3), "5", {"5"});
  Mark(Screen().txtC(0));
  Type("7");
  EXPECT_TRUE(Edit(Screen().txtC(3)).hasFocus());
}

TEST_F(Typing, Locked_Fields_Take_No_Keys) {
  Click(Screen().cmdToolBarC);
  Mark(Screen().txtC(1));
  Type("9");
  EXPECT_EQ(Shown(Screen().txtC(1)), "24");
  Mark(Screen().txtC(4));
  Type("9");
  EXPECT_EQ(Shown(Screen().txtC(4)), "60");
}

/// On a system that writes decimals with a point, as the input fields read them.
class TypingWithPoints : public Typing {
 protected:
  TypingWithPoints() { QLocale::setDefault(QLocale::c()); }
  ~TypingWithPoints() override { QLocale::setDefault(QLocale::system()); }
};

TEST_F(TypingWithPoints, A_Pasted_Number_Is_Taken_Whole) {
  Paste(Screen().txtT(0), "-12.5");
  EXPECT_EQ(Shown(Screen().txtT(0)), "-12.5");
  Paste(Screen().txtT(0), "-51");
  EXPECT_EQ(Shown(Screen().txtT(0)), "-50");
  Paste(Screen().txtT(1), "-61");
  EXPECT_EQ(Shown(Screen().txtT(1)), "-60");
}

TEST_F(TypingWithPoints, The_Caret_Stays_Behind_The_Typed_Digit) {
  struct Case {
    const char* before;
    int caret;
    const char* typed;
    const char* after;
    int caret_after;
  };
  constexpr Case kCases[] = {
      {"0", 1, "5", "5", 1},     // the leading zero goes
      {"0", 0, "5", "50", 1},    // typed in front of it
      {"12", 2, "5", "115", 3},  // cut at the limit, at the end
      {"80", 0, "1", "115", 1},  // and at the front
      {"12", 1, "0", "102", 2},  // between two digits
      {"12", 1, ".", "1.2", 2},  // a point that is followed by a digit stays
      {"12", 2, ".", "12", 2},   // one at the end goes
      {"12", 0, "-", "-12", 1},  // a sign in front
      {"12", 0, "0", "12", 0},   // a zero in front goes, and the caret stays in front
  };
  for (const Case& each : kCases) {
    SCOPED_TRACE(std::string(each.before) + " and " + each.typed);
    Paste(Screen().txtT(0), each.before);
    Edit(Screen().txtT(0)).setCursorPosition(each.caret);
    Type(each.typed);
    EXPECT_EQ(Shown(Screen().txtT(0)), each.after);
    EXPECT_EQ(Edit(Screen().txtT(0)).cursorPosition(), each.caret_after);
  }
}

TEST_F(Typing, The_Letters_Around_The_Caret_Can_Be_Taken_Away) {
  Paste(Screen().txtT(0), "105");
  Edit(Screen().txtT(0)).setCursorPosition(1);
  Press(Qt::Key_Backspace);  // 05
  EXPECT_EQ(Shown(Screen().txtT(0)), "5");
  Paste(Screen().txtT(0), "105");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Shown(Screen().txtT(0)), "10");
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Shown(Screen().txtT(0)), "0");
}

TEST_F(Typing, The_Decimal_Key_Of_The_Number_Pad_Types_What_It_Says) {
  Mark(Screen().txtmtrs);
  Type("2");
  Press(Qt::Key_Period, Qt::KeypadModifier);
  Type("5");
  EXPECT_EQ(Shown(Screen().txtmtrs), "2.5");
  EXPECT_EQ(State().Mtrs, 2);

  Mark(Screen().txtmtrs);
  Type("12");
  Press(Qt::Key_Comma, Qt::KeypadModifier);
  Type("5");
  EXPECT_EQ(Shown(Screen().txtmtrs), "12,5");
  EXPECT_EQ(State().Mtrs, 12);
}

/// The same on a system that writes decimals with a comma.
class TypingWithCommas : public Typing {
 protected:
  TypingWithCommas() { QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands)); }
  ~TypingWithCommas() override { QLocale::setDefault(QLocale::system()); }
};

TEST_F(TypingWithCommas, Results_Are_Written_With_Commas) {
  EXPECT_EQ(Shown(Screen().Label4(2)), "80,0");
  EXPECT_EQ(Shown(Screen().Label4(9)), "0,00");
  Type_And_Compare(Screen().txtT(0), "75", {"7", "75"});
  EXPECT_EQ(Shown(Screen().Label4(2)), "75,0");
}

TEST_F(TypingWithCommas, A_Pasted_Fraction_Reads_Back_As_Its_Integer_Part) {
  Paste(Screen().txtT(0), "12.5");
  EXPECT_EQ(Shown(Screen().txtT(0)), "12");
}

TEST_F(TypingWithCommas, The_Comma_Of_The_Number_Pad_Ends_A_Number_As_Any_Comma_Does) {
  Mark(Screen().txtmtrs);
  Type("3");
  Press(Qt::Key_Comma, Qt::KeypadModifier);
  Type("5");
  EXPECT_EQ(Shown(Screen().txtmtrs), "3,5");
  EXPECT_EQ(State().Mtrs, 3);
}

}  // namespace
}  // namespace norvane
