#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <set>

#include "desktop/own_commands.h"
#include "desktop/result_card.h"
#include "window_test.h"

namespace norvane {
namespace {

/// Whole sessions with one kind of input alone.
class Sessions : public WindowTest {
 protected:
  void TearDown() override { EXPECT_TRUE(desktop.program().Ended()) << "a session ends"; }

  /// Goes on by Tab until the field has the focus.
  void Tab_To(const Field& field) {
    constexpr int kMostControls = 60;
    for (int i = 0; i < kMostControls; ++i) {
      if (Widget(field).hasFocus()) return;
      Press(Qt::Key_Tab);
    }
    ADD_FAILURE() << "Tab doesn't reach " << field.Name();
  }
  void Press_Button(const Field& field) {
    Tab_To(field);
    Press(Qt::Key_Space);
  }
  void Type_Into(const TextField& field, const QString& text) {
    Tab_To(field);
    Type(text);
  }

  /// The fields that a user can do something with.
  std::set<const QWidget*> Controls() {
    // The results can be copied.
    std::set<const QWidget*> controls{Main_View().findChild<ResultCard*>()};
    for (const auto* word :
         Main_View().findChild<OwnCommands*>()->findChildren<QAbstractButton*>()) {
      controls.insert(word);
    }
    for (const Field* field : Screen().Fields()) {
      const QWidget* widget = Main_View().Widget_Of(*field);
      if (widget == nullptr || !widget->isVisible()) continue;
      if (dynamic_cast<const TextField*>(field) != nullptr ||
          dynamic_cast<const norvane::Button*>(field) != nullptr ||
          dynamic_cast<const ListField*>(field) != nullptr || field->Name() == "lblMenu" ||
          field == &Screen().picTotal) {
        controls.insert(widget);
      }
    }
    return controls;
  }
  /// Goes once round by Tab, or back by Shift and Tab.
  std::vector<const QWidget*> Round(bool back) {
    std::vector<const QWidget*> round;
    const QWidget* first = Main_View().focusWidget();
    do {
      round.push_back(Main_View().focusWidget());
      if (back) {
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
      } else {
        Press(Qt::Key_Tab);
      }
    } while (Main_View().focusWidget() != first && round.size() < 60);
    return round;
  }
  void Expect_Tab_Reaches_All() {
    const auto round = Round(false);
    std::set<const QWidget*> reached(round.begin(), round.end());
    EXPECT_EQ(reached.size(), round.size()) << "some are reached twice";
    for (const QWidget* control : Controls()) {
      EXPECT_TRUE(reached.contains(control))
          << qPrintable(control->objectName()) << " isn't reached";
    }
    for (const QWidget* widget : reached) {
      EXPECT_TRUE(Controls().contains(widget))
          << qPrintable(widget->objectName()) << " is no control";
    }
    auto back = Round(true);
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, round);
  }
};

/// A session in which every click, on buttons and lists alike, is the mouse's.
class SessionByMouse : public Sessions {
 protected:
  Total& Lines() { return *State().forms.total; }

  void Calculate() {
    // A pipe of 21 mm, from 10 in three steps, in 13 mm of insulation.
    for (int i = 0; i < 3; ++i) Step_Up(Screen().SpinButton1(3));
    for (int i = 0; i < 3; ++i) Step_Up(Screen().SpinButton1(2));
    EXPECT_EQ(Shown(Screen().txtT(3)), "21");
    EXPECT_EQ(Shown(Screen().txtT(2)), "13");
    EXPECT_EQ(Shown(Screen().Label4(6)), Number("36.58"));
  }
  void Save_With_Second_Product() {
    auto& products = dynamic_cast<QComboBox&>(Widget(Screen().Combo1));
    Click(products);
    QWidget& popup = *products.view()->window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&popup));
    // Sooner, letting go of the mouse would belong to the click that opened the list.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint second = products.view()->viewport()->mapTo(
        &popup, products.view()->visualRect(products.model()->index(1, 0)).center());
    norvane::Hover(popup, second);
    QTest::mouseClick(popup.windowHandle(), Qt::LeftButton, Qt::NoModifier, second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Screen().Combo1.Text() == "Norvane Tube K2"; }, 5000));
    Click(Screen().cmdAdd);
  }
  void Look_At_Condensation() {
    Click(Screen().cmdToolBarC);
    Click(Screen().cmdToolBar1(1));
    Step_Up(Screen().SpinButton1(4));
    EXPECT_EQ(Shown(Screen().txtC(3)), "6");
    EXPECT_EQ(Shown(Screen().txtC(4)), "65");
    Expect_Same_As_Model(Main_View());
    Click(Screen().cmdToolBarT);
  }
  void Change_The_Hours() {
    watchdog.Expect([this](QWidget&) {
      for (int i = 0; i < 4; ++i) Step_Down(State().forms.settings->UpDown1_0);
      Click(State().forms.settings->Command1);
    });
    Click(Screen().cmdToolBar5(0));
    EXPECT_EQ(State().Hr_Day, 20);
  }
  /// The question is answered by No, which closes the screen of one line.
  void Look_At_The_Saved_Line() {
    Click(Screen().picTotal);
    Wait_Until_Active(Lines());
    auto& table = dynamic_cast<QTableView&>(Widget(Lines().grdResult));
    const QModelIndex product = table.model()->index(0, 1);
    EXPECT_EQ(product.data().toString(), "Norvane Tube K2");
    watchdog.Expect_Message(QMessageBox::No);
    Click(View(Lines()),
          table.viewport()->mapTo(&View(Lines()), table.visualRect(product).center()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return watchdog.Messages().size() == 1; }, 5000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !State().forms.total.Loaded(); }, 5000));
    Wait_Until_Active(Screen());
  }
  void Look_At_Addresses_And_Change_The_Language() {
    Click(Screen().lblMenu(2));
    Click(State().forms.address->OK);
    Click(Screen().lblMenu(1));
    watchdog.Expect_Message(QMessageBox::Yes);  // the saved line goes
    Click(State().forms.lang->Label2(2));
    Click(State().forms.lang->OK);
    EXPECT_EQ(State().Lang_Index, 2);
    Wait_Until_Active(Screen());
    Expect_Same_As_Model(Main_View());
  }
};

TEST_F(SessionByMouse, Does_All_That_The_Program_Offers) {
  Calculate();
  Save_With_Second_Product();
  Look_At_Condensation();
  Change_The_Hours();
  Look_At_The_Saved_Line();
  Look_At_Addresses_And_Change_The_Language();
  QTimer::singleShot(0, qApp, [this] { Click(Screen().lblMenu(3)); });
  EXPECT_EQ(QApplication::exec(), 0);
}

/// A session without a mouse.
class SessionByKeyboard : public Sessions {
 protected:
  void Calculate() {
    Type_Into(Screen().txtT(0), "90");
    Type_Into(Screen().txtT(1), "20");
    Tab_To(Screen().txtT(3));
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Up);
    Type_Into(Screen().txtT(2), "20");
    Type_Into(Screen().txtmtrs, "100");
    EXPECT_EQ(Shown(Screen().txtT(0)), "90");
    EXPECT_EQ(Shown(Screen().txtT(1)), "20");
    EXPECT_EQ(Shown(Screen().txtT(2)), "20");
    EXPECT_EQ(Shown(Screen().txtT(3)), "21");
    EXPECT_EQ(State().Mtrs, 100);
  }
  void Save_With_Third_Product() {
    Tab_To(Screen().Combo1);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Screen().Combo1.Text(), "Norvane Tube K3");
    Press_Button(Screen().cmdAdd);
    EXPECT_EQ(State().Calc_List.size(), 3U);
  }
  void Look_At_Condensation_On_A_Sheet() {
    Press_Button(Screen().cmdToolBarC);
    Press_Button(Screen().cmdToolBar1(3));
    EXPECT_EQ(Screen().Calc_Mode, "C");
    EXPECT_EQ(State().Sel_Size, 3);
    Expect_Tab_Reaches_All();
    Tab_To(Screen().txtC(4));
    Press(Qt::Key_Up);
    EXPECT_EQ(Shown(Screen().txtC(4)), "65");
    Press_Button(Screen().cmdToolBar1(0));
    Press_Button(Screen().cmdToolBarT);
    Expect_Same_As_Model(Main_View());
  }
  void Change_The_Days() {
    watchdog.Expect([this](QWidget&) {
      Type_Into(State().forms.settings->Text2(1), "200");
      Press_Button(State().forms.settings->Command1);
    });
    Press_Button(Screen().cmdToolBar5(0));
    EXPECT_EQ(State().Days, 200);
  }
  /// With the last line its screen goes.
  void Delete_The_Saved_Line() {
    Press_Button(Screen().picTotal);
    Wait_Until_Active(*State().forms.total);
    Tab_To(State().forms.total->grdResult);
    Press(Qt::Key_Space);
    watchdog.Expect([](QWidget& box) {
      Press(Qt::Key_Y, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }, 5000));
    });
    Press(Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !State().forms.total.Loaded(); }, 5000));
    EXPECT_EQ(State().Calc_List.size(), 2U);
    Wait_Until_Active(Screen());
  }
  void Look_At_Addresses_And_Change_The_Language() {
    Press_Button(Screen().lblMenu(2));
    Wait_Until_Active(*State().forms.address);
    Press(Qt::Key_Escape);
    Wait_Until_Active(Screen());
    Press_Button(Screen().lblMenu(1));
    Wait_Until_Active(*State().forms.lang);
    Press_Button(State().forms.lang->Label2(2));
    EXPECT_EQ(State().Lang_Index, 2);
    Press_Button(State().forms.lang->OK);
    Wait_Until_Active(Screen());
    Expect_Same_As_Model(Main_View());
  }
};

TEST_F(SessionByKeyboard, Does_All_That_The_Program_Offers) {
  Expect_Tab_Reaches_All();
  Calculate();
  Save_With_Third_Product();
  Expect_Tab_Reaches_All();  // with the ways to the saved lines
  Look_At_Condensation_On_A_Sheet();
  Change_The_Days();
  Delete_The_Saved_Line();
  Look_At_Addresses_And_Change_The_Language();
  QTimer::singleShot(0, qApp, [this] { Press_Button(Screen().lblMenu(3)); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(SessionByKeyboard, Tab_Follows_The_Rows_From_Top_To_Bottom) {
  Tab_To(Screen().txtT(0));
  for (const TextField* next :
       {&Screen().txtT(1), &Screen().txtT(3), &Screen().txtT(2), &Screen().txtmtrs}) {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Widget(*next).hasFocus()) << next->Name() << next->Index();
  }
  Press_Button(Screen().cmdToolBarC);
  Tab_To(Screen().txtC(0));
  for (const TextField* next : {&Screen().txtC(1), &Screen().txtC(3), &Screen().txtC(2),
                                &Screen().txtC(4), &Screen().txtmtrs}) {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Widget(*next).hasFocus()) << next->Name() << next->Index();
  }
  Press_Button(Screen().lblMenu(3));
}

}  // namespace
}  // namespace norvane
