#include <QLocale>
#include <QTableWidget>

#include "window_test.h"

namespace norvane {
namespace {

/// The pickers of the main screen, opened and used by keys and mouse.
class Picking : public WindowTest {
 protected:
  /// The picker, or null while none is open.
  QWidget* Open_Picker() {
    auto* picker = Main_View().findChild<QWidget*>("picker");
    return picker != nullptr && picker->isVisible() ? picker : nullptr;
  }
  void Open(const TextField& field) {
    Click(field);
    Press(Qt::Key_F4);
    ASSERT_NE(Open_Picker(), nullptr);
  }
  QLineEdit& Line() { return *Open_Picker()->findChild<QLineEdit*>("picker_line"); }
  QLabel& Limits() { return *Open_Picker()->findChild<QLabel*>("picker_limits"); }
  QTableWidget& List() { return *Open_Picker()->findChild<QTableWidget*>("picker_list"); }
  QWidget& Arrow_In(const TextField& field) {
    return *Edit(field).findChild<QWidget*>("picker_arrow");
  }
  /// The marked text of the list, empty when none is marked.
  QString Marked() {
    const auto marked = List().selectedItems();
    return marked.isEmpty() ? QString() : marked.first()->text();
  }
  void Click_In_List(const QString& text) {
    const auto found = List().findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    QWidget& viewport = *List().viewport();
    List().scrollToItem(found.first());
    const QPoint at = List().visualItemRect(found.first()).center();
    Click(Main_View(), viewport.mapTo(&Main_View(), at));
  }
};

TEST_F(Picking, Opens_By_F4_F2_Alt_And_Down_And_The_Arrow_In_The_Field) {
  for (const int key : {Qt::Key_F4, Qt::Key_F2}) {
    Click(Screen().txtT(0));
    Press(key);
    EXPECT_NE(Open_Picker(), nullptr);
    Press(key);
    EXPECT_EQ(Open_Picker(), nullptr) << "the same key closes it";
  }
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_NE(Open_Picker(), nullptr);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_EQ(Shown(Screen().txtT(0)), "80") << "Alt+Down is no step";
  Click(Arrow_In(Screen().txtT(3)));
  EXPECT_NE(Open_Picker(), nullptr);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(Edit(Screen().txtT(3)).hasFocus());
}

TEST_F(Picking, Is_Made_At_Its_First_Use) {
  EXPECT_EQ(Main_View().findChild<QWidget*>("picker"), nullptr);
  Open(Screen().txtT(0));
  EXPECT_NE(Main_View().findChild<QWidget*>("picker"), nullptr);
}

TEST_F(Picking, Takes_A_Whole_Number_At_Once) {
  Open(Screen().txtT(3));
  Type("21");
  EXPECT_EQ(Shown(Screen().txtT(3)), "10") << "nothing happens while the number is typed";
  Press(Qt::Key_Return);
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_EQ(Shown(Screen().txtT(3)), "21");
  EXPECT_EQ(Shown(Screen().Text2(3)), "1/2");
  EXPECT_TRUE(Edit(Screen().txtT(3)).hasFocus());
}

TEST_F(Picking, Takes_A_Minus_And_Decimals) {
  Open(Screen().txtT(1));
  Type("-5");
  Press(Qt::Key_Enter);
  EXPECT_EQ(Shown(Screen().txtT(1)), "-5");
  EXPECT_EQ(Shown(Screen().Text2(1)), "23");
  Open(Screen().txtT(0));
  Type("62.5");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtT(0)), "62.5");
}

TEST_F(Picking, Does_What_A_Paste_Does) {
  Open(Screen().txtT(2));
  Type("13");
  Press(Qt::Key_Return);
  const std::string picked = Shown(Screen().Label4(9));
  Paste(Screen().txtT(2), "20");
  Paste(Screen().txtT(2), "13");
  EXPECT_EQ(Shown(Screen().Label4(9)), picked);
}

TEST_F(Picking, Tab_Takes_And_Goes_On_To_The_Next_Field) {
  Open(Screen().txtT(0));
  Type("70");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Shown(Screen().txtT(0)), "70");
  EXPECT_TRUE(Edit(Screen().txtT(1)).hasFocus());
  Press(Qt::Key_F2);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Shown(Screen().txtT(1)), "15") << "what wasn't touched stays";
  EXPECT_TRUE(Edit(Screen().txtT(3)).hasFocus());
  Press(Qt::Key_F2);
  Type("42");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Shown(Screen().txtT(3)), "42");
  EXPECT_TRUE(Edit(Screen().txtT(1)).hasFocus());
}

TEST_F(Picking, Escape_And_A_Click_Elsewhere_Forget_What_Was_Typed) {
  Open(Screen().txtT(0));
  Type("33");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Shown(Screen().txtT(0)), "80");
  Open(Screen().txtT(0));
  EXPECT_EQ(Line().text(), "80");
  Type("33");
  Click(Widget(Screen().Picture2));
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_EQ(Shown(Screen().txtT(0)), "80");
}

TEST_F(Picking, A_Click_On_The_List_Takes_It) {
  Click(Arrow_In(Screen().txtT(3)));
  Click_In_List("34");
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_EQ(Shown(Screen().txtT(3)), "34");
}

TEST_F(Picking, The_Keys_Of_The_Line_Move_Through_The_List) {
  Open(Screen().txtT(3));
  EXPECT_EQ(Marked(), "10");
  Press(Qt::Key_Down);
  EXPECT_EQ(Line().text(), "15");
  Press(Qt::Key_PageDown);
  Press(Qt::Key_Up);
  EXPECT_EQ(Line().text(), "60");
  Press(Qt::Key_PageUp);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(Line().text(), "10");
  EXPECT_EQ(Shown(Screen().txtT(3)), "10");
  Type("220");
  Press(Qt::Key_Down);
  EXPECT_EQ(Line().text(), "219") << "the place that was found, at first";
}

TEST_F(Picking, Marks_In_The_List_What_Would_Be_Taken) {
  Open(Screen().txtT(3));
  Type("2");
  EXPECT_EQ(Marked(), "") << "2 would become 6, which is no size of the list";
  EXPECT_TRUE(List().viewport()->rect().contains(List().visualItemRect(List().item(3, 0))))
      << "21 is in sight";
  Type("7");
  EXPECT_EQ(Marked(), "27");
  EXPECT_EQ(List().selectedItems().last()->text(), "3/4 inch");
  Press(Qt::Key_Escape);
}

TEST_F(Picking, Shows_The_Limits_And_Cuts_To_Them) {
  Open(Screen().txtT(0));
  EXPECT_EQ(Limits().text(), QString("-50 \u2026 115 \u00B0C"));
  Type("99999");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtT(0)), "115");
  Open(Screen().txtmtrs);
  EXPECT_EQ(Limits().text(), QString("0 \u2026 10000"));
  Press(Qt::Key_Escape);
}

TEST_F(Picking, Takes_No_Letters_And_Stays_Open_With_No_Number) {
  Open(Screen().txtT(0));
  Type("x7,y");
  EXPECT_EQ(Line().text(), "7") << "a comma groups digits here";
  Press(Qt::Key_Backspace);
  Type("-");
  Press(Qt::Key_Return);
  EXPECT_NE(Open_Picker(), nullptr);
  Press(Qt::Key_Tab);
  EXPECT_NE(Open_Picker(), nullptr);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Shown(Screen().txtT(0)), "80");
}

TEST_F(Picking, Lists_The_Sizes_Of_The_Kind_That_Is_Chosen) {
  Click(Screen().cmdToolBar1(1));
  Open(Screen().txtT(3));
  EXPECT_EQ(List().rowCount(), 18);
  EXPECT_EQ(List().item(5, 1)->text(), "7/8 inch");
  Press(Qt::Key_Escape);
  Click(Screen().cmdToolBar1(2));
  Open(Screen().txtT(3));
  EXPECT_EQ(List().rowCount(), 12);
  EXPECT_TRUE(List().isColumnHidden(1)) << "plastic has no inch names";
  Press(Qt::Key_Escape);
}

TEST_F(Picking, Steps_A_Locked_Field_To_What_Was_Picked) {
  Click(Screen().cmdToolBarC);
  Open(Screen().txtC(1));
  Type("28");
  EXPECT_EQ(Marked(), "28");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Shown(Screen().txtC(1)), "28");
  EXPECT_EQ(Shown(Screen().Text2(1)), "82.4");
  Open(Screen().txtC(4));
  EXPECT_EQ(Limits().text(), QString("30 \u2026 95"));
  Type("79");
  EXPECT_EQ(Marked(), "80") << "the nearest entry";
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtC(4)), "80");
  Open(Screen().txtC(4));
  Press(Qt::Key_Down);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtC(4)), "30");
}

TEST_F(Picking, A_Result_Has_No_Picker) {
  Click(Screen().cmdToolBarC);
  EXPECT_EQ(Edit(Screen().txtC(2)).findChild<QWidget*>("picker_arrow"), nullptr);
  Click(Screen().txtC(2));
  Press(Qt::Key_F4);
  EXPECT_EQ(Open_Picker(), nullptr);
}

TEST_F(Picking, A_Screen_Reader_Is_Told_The_Field_And_Its_Limits) {
  EXPECT_EQ(Arrow_In(Screen().txtT(0)).accessibleName(), "Medium temperature: Choose a value");
  Open(Screen().txtT(0));
  EXPECT_EQ(Line().accessibleName(), "Medium temperature");
  EXPECT_EQ(Line().accessibleDescription(), Limits().text());
  EXPECT_EQ(List().accessibleName(), "Medium temperature");
  Press(Qt::Key_Escape);
}

TEST_F(Picking, Stays_In_The_Window_And_Off_The_Field) {
  for (const TextField* field : {&Screen().txtT(0), &Screen().txtT(3), &Screen().txtmtrs}) {
    Open(*field);
    const QWidget& edit = Edit(*field);
    const QRect place(edit.mapTo(&Main_View(), QPoint()), edit.size());
    EXPECT_TRUE(Main_View().rect().contains(Open_Picker()->geometry()));
    EXPECT_FALSE(place.intersects(Open_Picker()->geometry()));
    Press(Qt::Key_Escape);
  }
}

TEST_F(Picking, Ends_Where_The_User_Turns_To_Something_Else) {
  Open(Screen().txtmtrs);  // which lies above all that its picker covers
  Type("33");
  Click(Screen().txtT(3));
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_TRUE(Edit(Screen().txtT(3)).hasFocus());
  Open(Screen().txtmtrs);
  Click(Arrow_In(Screen().txtT(3)));
  ASSERT_NE(Open_Picker(), nullptr) << "the other field's";
  EXPECT_EQ(Line().text(), "10");
  Step_Up(Screen().SpinButton1(3));
  EXPECT_EQ(Open_Picker(), nullptr);
  EXPECT_EQ(Shown(Screen().txtT(3)), "15");
  EXPECT_EQ(Shown(Screen().txtmtrs), "1");
}

TEST_F(Picking, A_Digit_Opens_It_In_A_Field_That_Can_Not_Be_Typed_Into) {
  Click(Screen().cmdToolBarC);
  Click(Screen().txtC(1));
  Type("-");
  ASSERT_NE(Open_Picker(), nullptr);
  EXPECT_EQ(Line().text(), "-");
  Type("5");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Shown(Screen().txtC(1)), "-5");
  Click(Screen().txtC(4));
  Type("8");
  EXPECT_EQ(Marked(), "80") << "no humidity is as low as 8";
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtC(4)), "80");
  for (const char* letter : {"-", "9", "7"}) {
    Type(letter);
    EXPECT_EQ(Line().text(), letter);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Open_Picker(), nullptr) << letter;
  }
  Type("x");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Open_Picker(), nullptr) << "neither begins a number";
  Click(Screen().cmdToolBarT);
  Click(Screen().txtT(0));
  Type("9");
  EXPECT_EQ(Open_Picker(), nullptr) << "here a digit is a letter of the text";
}

/// The same on a system that writes decimals with a comma.
class PickingWithCommas : public Picking {
 protected:
  PickingWithCommas() { QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands)); }
  ~PickingWithCommas() override {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
  }
};

TEST_F(PickingWithCommas, Takes_A_Comma_For_The_Point_That_A_Field_Reads) {
  Open(Screen().txtmtrs);
  Type("2,5");
  EXPECT_EQ(Line().text(), "2,5");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtmtrs), "2.5");
  EXPECT_EQ(State().Mtrs, 2);
}

/// A language file of a user's own that knows the prescribed texts only.
class PickingInAnOlderLanguage : public Picking {
 protected:
  PickingInAnOlderLanguage() {
    std::string english = folder.Bytes_Of("language.len");
    english.erase(english.find("101,"));
    folder.Write("language.len", english);
  }
};

TEST_F(PickingInAnOlderLanguage, Says_In_English_What_The_File_Lacks) {
  EXPECT_EQ(Arrow_In(Screen().txtT(0)).accessibleName(), "Medium temperature: Choose a value");
}

}  // namespace
}  // namespace norvane
