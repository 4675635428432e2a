#include "places_test.h"

#include <QApplication>

namespace norvane {
namespace {

using Places = PlacesTest;

TEST_F(Places, No_Window_Opens_With_A_Part_Outside_The_Screen) {
  Expect_Inside(Screen());
  Open(Screen().lblMenu(1), Languages());
  Expect_Inside(Languages());
  EXPECT_TRUE(View(Languages()).rect().contains(Widget(Languages().OK).geometry()));
  Click(Languages().OK);
  Open(Screen().lblMenu(2), Addresses());
  Expect_Inside(Addresses());
  EXPECT_TRUE(View(Addresses()).rect().contains(Widget(Addresses().OK).geometry()));
  Click(Addresses().OK);
  watchdog.Expect([this](QWidget& dialog) {
    Settle();
    Expect_Inside(*State().forms.settings);
    EXPECT_TRUE(dialog.rect().contains(Widget(State().forms.settings->Command2).geometry()));
    Press(Qt::Key_Escape);
  });
  Bring_Into_View(Screen().cmdToolBar5(0));
  Click(Screen().cmdToolBar5(0));
  Open_Totals();
  Expect_Inside(Totals());
}

TEST_F(Places, Every_Field_Of_The_Main_Screen_Comes_Into_View_With_The_Focus) {
  for (const TextField* field : {&Screen().txtT(0), &Screen().txtmtrs}) {
    QWidget& edit = Widget(*field);
    edit.setFocus(Qt::TabFocusReason);
    Settle();
    EXPECT_EQ(edit.visibleRegion().boundingRect(), edit.rect());
  }
  // The last in the order of the Tab key.
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  QWidget& last = *QApplication::focusWidget();
  EXPECT_EQ(last.visibleRegion().boundingRect(), last.rect());
}

TEST_F(Places, The_Totals_Open_Beside_The_Main_Window_Where_It_Is_Now) {
  Move(Screen(), Area().topLeft() + QPoint(13, 17));
  Open_Totals();
  Expect_Inside(Totals());
  const QPoint beside = Frame_Of(Screen()).topLeft() + QPoint(To_Pixels(1600), To_Pixels(1800));
  // A small screen may lack the room for it there.
  if (!Area().contains(QRect(beside, Frame_Of(Totals()).size()))) return;
  // At a scale of one and a half not each place is a whole number of the display's pixels.
  EXPECT_LE((Frame_Of(Totals()).topLeft() - beside).manhattanLength(), 2);
}

TEST_F(Places, The_Totals_Go_By_The_Frame_That_The_Main_Window_Has_Now) {
  Move(Screen(), Area().topLeft() + QPoint(13, 17));
  // Told while the window manager was about to change the frame, of which it tells nobody.
  Screen().Set_Observer(nullptr);
  Screen().Set_Position(0, 0);
  Screen().Set_Observer(&Main_View());
  Open_Totals();
  EXPECT_EQ(To_Pixels(Screen().Place().left), Frame_Of(Screen()).x());
  EXPECT_EQ(To_Pixels(Screen().Place().top), Frame_Of(Screen()).y());
}

TEST_F(Places, The_Totals_Open_Inside_The_Screen_Beside_A_Maximised_Main_Window) {
  Main_View().showMaximized();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Main_View().isMaximized(); }, 5000));
  Expect_Told(Screen());
  Open_Totals();
  Expect_Inside(Totals());
}

TEST_F(Places, The_Totals_Open_Inside_The_Screen_Beside_A_Main_Window_That_Leaves_It) {
  Move(Screen(), Area().bottomRight() - QPoint(300, 200));
  Open_Totals();
  Expect_Inside(Totals());
}

TEST_F(Places, A_List_That_Is_Open_Is_Centred_Again_By_Its_Menu_Entry) {
  for (const auto& [entry, form] : {std::pair<int, Form*>{1, &Languages()}, {2, &Addresses()}}) {
    SCOPED_TRACE(form->Name());
    Open(Screen().lblMenu(entry), *form);
    Expect_Centred(*form);
    Move(*form, Area().topLeft() + QPoint(5, 10));
    Open(Screen().lblMenu(entry), *form);
    Expect_Centred(*form);
    View(*form).close();
  }
}

TEST_F(Places, A_Dialog_Without_A_Frame_Is_Dragged_By_Its_Ground) {
  Open(Screen().lblMenu(2), Addresses());
  Expect_Centred(Addresses());
  QWindow& window = *View(Addresses()).windowHandle();
  const QPoint before = window.framePosition();
  const QPoint ground(100, 5);
  QTest::mousePress(&window, Qt::LeftButton, {}, ground);
  QTest::mouseMove(&window, ground + QPoint(40, 30));
  Settle();
  EXPECT_EQ(window.framePosition(), before + QPoint(40, 30));
  QTest::mouseRelease(&window, Qt::LeftButton, {}, ground);
  QTest::mouseMove(&window, ground + QPoint(60, 60));
  Settle();
  EXPECT_EQ(window.framePosition(), before + QPoint(40, 30));
  Expect_Told(Addresses());
}

TEST_F(Places, A_Place_That_The_Main_Window_Gets_Behind_A_Dialog_Is_Told_Afterwards) {
  const QPoint place = Area().topLeft() + QPoint(2, 4);
  watchdog.Expect([&](QWidget&) {
    Main_View().move(place);
    Settle();
    Press(Qt::Key_Escape);
  });
  Bring_Into_View(Screen().cmdToolBar5(0));
  Click(Screen().cmdToolBar5(0));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Screen().Place().left == To_Twips(place.x()); }, 5000));
  Expect_Told(Screen());
}

TEST_F(Places, A_Window_Behind_Is_Moved_Without_Coming_To_The_Front) {
  Open_Totals();
  Move(Screen(), Area().topLeft() + QPoint(3, 6));
  EXPECT_TRUE(Totals().Is_Active());
  EXPECT_TRUE(View(Totals()).isActiveWindow());
}

TEST_F(Places, A_Window_That_Is_Moved_Before_Its_Frame_Is_Known_Stays_There) {
  Bring_Into_View(Screen().cmdAdd);
  Click(Screen().cmdAdd);
  desktop.Answer({UserAction::kClick, Screen(), &Screen().picTotal});
  FormView& totals = View(Totals());
  ASSERT_TRUE(totals.windowHandle()->frameMargins().isNull());
  const QPoint place = Area().bottomRight() - QPoint(120, 150);
  totals.move(place);
  Wait_Until_Active(Totals());
  Expect_Told(Totals());
  ASSERT_FALSE(totals.windowHandle()->frameMargins().isNull());
  // Whose corner was moved there, that of the frame or that of its inside, is Qt's matter.
  EXPECT_LT((Frame_Of(Totals()).topLeft() - place).manhattanLength(), 50);
}

TEST_F(Places, The_Settings_Open_In_The_Middle_Of_The_Main_Window) {
  Move(Screen(), Area().topLeft() + QPoint(20, 10));
  watchdog.Expect([this](QWidget&) {
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
          const QPoint middle = Frame_Of(Screen()).center();
          const QPoint off = Frame_Of(*State().forms.settings).center() - middle;
          return off.manhattanLength() <= 4;
        },
        2000));
    Press(Qt::Key_Escape);
  });
  Bring_Into_View(Screen().cmdToolBar5(0));
  Click(Screen().cmdToolBar5(0));
}

TEST_F(Places, Dialogs_Belong_To_The_Main_Window_And_Have_One_Way_To_Close_On_Their_Frame) {
  const auto expect_dialog = [this](const Form& form) {
    SCOPED_TRACE(form.Name());
    const FormView& view = View(form);
    EXPECT_EQ(view.windowHandle()->transientParent(), Main_View().windowHandle());
    EXPECT_EQ(view.windowType(), Qt::Dialog);
    EXPECT_FALSE(view.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  };
  const auto expect_own_cross = [this](const Form& form, const Field& cross) {
    EXPECT_TRUE(Widget(cross).isVisible()) << form.Name();
    EXPECT_TRUE(View(form).windowHandle()->frameMargins().isNull()) << form.Name();
  };
  Open(Screen().lblMenu(1), Languages());
  expect_dialog(Languages());
  expect_own_cross(Languages(), Languages().imgExit);
  Click(Languages().OK);
  Open(Screen().lblMenu(2), Addresses());
  expect_dialog(Addresses());
  expect_own_cross(Addresses(), Addresses().imgExit);
  Click(Addresses().OK);
  watchdog.Expect([&](QWidget&) {
    expect_dialog(*State().forms.settings);
    EXPECT_FALSE(
        View(*State().forms.settings).windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    Press(Qt::Key_Escape);
  });
  Bring_Into_View(Screen().cmdToolBar5(0));
  Click(Screen().cmdToolBar5(0));
  Open_Totals();
  expect_dialog(Totals());
  EXPECT_TRUE(View(Totals()).windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(Places, The_Totals_Go_With_The_Main_Window_When_It_Is_Minimised) {
  Open_Totals();
  Main_View().showMinimized();
  const auto* totals = View(Totals()).windowHandle();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !totals->isExposed(); }, 5000));
  Main_View().showNormal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return totals->isExposed(); }, 5000));
}

}  // namespace
}  // namespace norvane
